#include "gpmbooleandata.h"

#include "attributes_p.h"
#include "listmodel_p.h"
#include "rxmembers_p.h"

#include <oa/Property.h>
#include <qut/qtconversions.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMBooleanData, GPMPropertyDataBase, "GPMBooleanData")

struct GPMBooleanData::Private
{
    int currentIndex = -1;
    AvSmartPtr<const oa::BooleanValueAttribute> attribute;
    qut::StringListModel* model;
};

GPMBooleanData::GPMBooleanData(const oa::Property& property)
    : GPMPropertyDataBase(property)
    , d(new Private{-1, attributeOf<oa::BooleanValueAttribute>(property), newChildListModel(*this)})
{
    tdx::PropertyValue value;
    if (!d->attribute || !readValue(value, false))
        return;
    std::vector<QString> labels{qut::toQt(d->attribute->trueLabel()), qut::toQt(d->attribute->falseLabel())};
    const AvSmartPtr<const oa::ValueAttribute> valueAttribute = attributeOf<oa::ValueAttribute>(property);
    const bool allowsNoValue = valueAttribute && valueAttribute->allowsNoValue;
    if (allowsNoValue)
        labels.push_back(gpmNoValueText());
    d->model->reset(std::move(labels));
    if (value.flags() & tdx::PropertyValue::kVaries)
        return;
    // Logged for an ordinary no-value state too: the typed read failed.
    if (checkTyped(value, tdx::PropertyValue::kBoolean))
        d->currentIndex = value.toBool() ? 0 : 1;
    else if (allowsNoValue)
        d->currentIndex = 2;
}

GPMBooleanData::~GPMBooleanData() = default;

QString GPMBooleanData::type() const
{
    return QStringLiteral("combobox");
}

QUrl GPMBooleanData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("EnumerationType.qml"));
}

QAbstractListModel* GPMBooleanData::enumerationModel() const
{
    return d->model;
}

int GPMBooleanData::initialCurrentIndex() const
{
    return d->currentIndex;
}

bool GPMBooleanData::isVaries() const
{
    return readVaries();
}

void GPMBooleanData::setCurrentIndex(int index)
{
    if (index == d->currentIndex)
        return;
    using V = tdx::PropertyValue;
    std::optional<V> value;
    if (index == 0 || index == 1)
        value = V(index == 0);
    else if (index == 2)
        value = V(V::kBoolean, 0, V::kBooleanBits | V::kNoValue);
    if (writeChoice(d->currentIndex, index, value))
        Q_EMIT variesChanged();
}

} // namespace dbr
