#include "gpmrealdata.h"

#include "attributes_p.h"
#include "listmodel_p.h"
#include "rxmembers_p.h"

#include <oa/Property.h>
#include <qut/qtconversions.h>

#include <iterator>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMRealData, GPMPropertyDataBase, "GPMRealData")

struct GPMRealData::Private
{
    AvSmartPtr<const oa::UnitsAttribute> units;
    int unitsIndex = 0;
    qut::StringListModel* model;

    // The chosen unit; the best one for the number when the index names none.
    oa::UnitsAttribute::const_iterator unit(double number) const
    {
        const auto& all = units->units();
        if (unitsIndex < 0 || size_t(unitsIndex) >= all.size())
            return units->bestUnit(number);
        return std::next(all.cbegin(), unitsIndex);
    }
};

GPMRealData::GPMRealData(const oa::Property& property)
    : GPMPropertyDataBase(property)
    , d(new Private{attributeOf<oa::UnitsAttribute>(property), 0, newChildListModel(*this)})
{
    if (!d->units)
        return;
    tdx::PropertyValue value;
    if (readValue(value, true) && checkTyped(value, tdx::PropertyValue::kReal))
        d->unitsIndex = int(std::distance(d->units->units().cbegin(), d->units->bestUnit(value.toReal())));
    std::vector<QString> names;
    for (auto it = d->units->units().cbegin(); it != d->units->units().cend(); ++it)
        names.push_back(qut::toQt(d->units->displayName(it)));
    d->model->reset(std::move(names));
}

GPMRealData::~GPMRealData() = default;

QString GPMRealData::type() const
{
    return QStringLiteral("real");
}

QUrl GPMRealData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("RealType.qml"));
}

QString GPMRealData::value() const
{
    const auto [text, value] = getStringOrValue();
    if (!text.isEmpty())
        return text;
    if (!checkTyped(value, tdx::PropertyValue::kReal))
        return QString();
    const double number = value.toReal();
    if (!d->units)
        return QString::number(number, 'g', 6);
    return qut::toQt(d->units->format(number, d->unit(number), !property().isReadOnly(std::nullopt), 65535));
}

void GPMRealData::setValue(const QString& text)
{
    using V = tdx::PropertyValue;
    if (writeSpecialText(text, V(V::kReal, 0, V::kNoValue), V(V::kReal, 0, V::kVaries)))
        return;
    bool ok = false;
    double number = text.toDouble(&ok);
    if (!ok)
        return;
    if (d->units) {
        const auto unit = d->unit(number);
        if (unit != d->units->units().cend())
            number *= unit->second;
    }
    if (writeValue(V(number)))
        Q_EMIT valueChanged();
}

bool GPMRealData::hasUnits() const
{
    return bool(d->units);
}

QAbstractListModel* GPMRealData::unitsModel() const
{
    return d->model;
}

int GPMRealData::unitsIndex() const
{
    return d->unitsIndex;
}

void GPMRealData::setCurrentUnitIndex(int index)
{
    d->unitsIndex = index;
    Q_EMIT unitsIndexChanged();
}

} // namespace dbr
