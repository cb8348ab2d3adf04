#include "gpmenumerationdata.h"

#include "attributes_p.h"
#include "listmodel_p.h"
#include "rxmembers_p.h"

#include <QDebug>

#include <oa/Property.h>
#include <qut/qtconversions.h>

#include <iterator>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMEnumerationData, GPMPropertyDataBase, "GPMEnumerationData")

struct GPMEnumerationData::Private
{
    int currentIndex = -1;
    AvSmartPtr<const oa::EnumerationAttribute> attribute;
    qut::StringListModel* model;
};

GPMEnumerationData::GPMEnumerationData(const oa::Property& property)
    : GPMEnumerationData(property, attributeOf<oa::EnumerationAttribute>(property))
{
    if (!d->attribute)
        qDebug() << "Got Enumeration property without EnumerationAttribute: " << qut::toQt(property.globalName());
}

GPMEnumerationData::GPMEnumerationData(const oa::Property& property,
                                       AvSmartPtr<const oa::EnumerationAttribute> attribute)
    : GPMPropertyDataBase(property)
    , d(new Private{-1, std::move(attribute), newChildListModel(*this)})
{
    tdx::PropertyValue value;
    if (!d->attribute || !readValue(value, false))
        return;
    const auto& values = d->attribute->values();
    std::vector<QString> labels;
    for (const auto& entry : values)
        labels.push_back(qut::toQt(entry.first));
    const AvSmartPtr<const oa::ValueAttribute> valueAttribute = attributeOf<oa::ValueAttribute>(property);
    const bool allowsNoValue = valueAttribute && valueAttribute->allowsNoValue;
    if (allowsNoValue)
        labels.push_back(gpmNoValueText());
    d->model->reset(std::move(labels));
    if (value.flags() & tdx::PropertyValue::kVaries)
        return;
    // A value not in the list lands on the "*NoValue*" row, which stands just past the labels.
    const auto found = d->attribute->value_find(value);
    if (found != values.cend() || allowsNoValue)
        d->currentIndex = int(std::distance(values.cbegin(), found));
}

GPMEnumerationData::~GPMEnumerationData() = default;

QString GPMEnumerationData::type() const
{
    return QStringLiteral("combobox");
}

QUrl GPMEnumerationData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("EnumerationType.qml"));
}

QAbstractListModel* GPMEnumerationData::enumerationModel() const
{
    return d->model;
}

int GPMEnumerationData::initialCurrentIndex() const
{
    return d->currentIndex;
}

bool GPMEnumerationData::isVaries() const
{
    return readVaries();
}

void GPMEnumerationData::setCurrentIndex(int index)
{
    if (index == d->currentIndex)
        return;
    const int count = d->attribute ? int(d->attribute->values().size()) : 0;
    std::optional<tdx::PropertyValue> value;
    if (index >= 0 && index < count)
        value = d->attribute->values().at(size_t(index)).second;
    else if (index == count) {
        value.emplace();
        value->setNoValue();
    }
    if (writeChoice(d->currentIndex, index, value))
        Q_EMIT variesChanged();
}

} // namespace dbr
