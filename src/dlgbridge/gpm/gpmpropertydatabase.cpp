#include "gpmpropertydatabase.h"

#include "rxmembers_p.h"

#include <QDebug>

#include <oa/Property.h>
#include <qut/qtconversions.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMPropertyDataBase, GPMTreeData, "GPMPropertyDataBase")

QString gpmVariesText()
{
    return QObject::tr("*Varies*");
}

QString gpmNoValueText()
{
    return QObject::tr("*NoValue*");
}

struct GPMPropertyDataBase::Private
{
    const oa::Property& property;
};

GPMPropertyDataBase::GPMPropertyDataBase(const oa::Property& property)
    : d(new Private{property})
{}

const oa::Property& GPMPropertyDataBase::property() const
{
    return d->property;
}

GPMPropertyDataBase::~GPMPropertyDataBase() = default;

QString GPMPropertyDataBase::label() const
{
    return qut::toQt(d->property.localName());
}

QString GPMPropertyDataBase::description() const
{
    return qut::toQt(d->property.description());
}

bool GPMPropertyDataBase::isReadOnly() const
{
    return d->property.isReadOnly(std::nullopt);
}

const ut::UUID& GPMPropertyDataBase::GUID() const
{
    return d->property.GUID();
}

AvSmartPtr<const OdRxObject> GPMPropertyDataBase::getAttribute(const OdRxClass* cls,
                                                               std::optional<const OdRxObject*> object) const
{
    return d->property.getAttribute(cls, object);
}

OdString GPMPropertyDataBase::getStringValue() const
{
    OdString result;
    tdx::PropertyValue value;
    if (d->property.getValue(value, std::nullopt)) {
        const oa::AttributeCollection& attributes = d->property.attributes(std::nullopt);
        // The drawing database that gives the formatting context is not reached
        // from here yet; types format without one.
        d->property.type()->valueToString(result, value, nullptr, &attributes);
    }
    return result;
}

std::pair<QString, tdx::PropertyValue> GPMPropertyDataBase::getStringOrValue() const
{
    tdx::PropertyValue value;
    if (!d->property.getValue(value, std::nullopt))
        return {QString(), tdx::PropertyValue()};
    if (value.flags() & tdx::PropertyValue::kVaries)
        return {gpmVariesText(), value};
    if (value.flags() & tdx::PropertyValue::kNoValue)
        return {gpmNoValueText(), value};
    return {QString(), value};
}

bool GPMPropertyDataBase::readValue(tdx::PropertyValue& value, bool logFailure) const
{
    if (d->property.getValue(value, std::nullopt))
        return true;
    if (logFailure)
        qDebug() << "Unable to get property " << label() << " value";
    return false;
}

bool GPMPropertyDataBase::checkTyped(const tdx::PropertyValue& value, std::uint32_t kind) const
{
    if (value.kind() == kind && !(value.flags() & (tdx::PropertyValue::kNoValue | tdx::PropertyValue::kVaries)))
        return true;
    logTypedFailure();
    return false;
}

void GPMPropertyDataBase::logTypedFailure() const
{
    qDebug() << "Unable to get property " << label() << " typed value";
}

bool GPMPropertyDataBase::writeValue(const tdx::PropertyValue& value)
{
    startWrite();
    return finishWrite(value);
}

void GPMPropertyDataBase::startWrite()
{
    Q_EMIT updateStarted(qut::toQt(OdString(d->property.GUID())));
}

bool GPMPropertyDataBase::finishWrite(const tdx::PropertyValue& value)
{
    const bool written = d->property.setValue(value, std::nullopt);
    if (!written)
        qDebug() << "Error setting property " << label() << " value";
    Q_EMIT updateFinished(written);
    return written;
}

bool GPMPropertyDataBase::writeSpecialText(const QString& text, const tdx::PropertyValue& noValue,
                                           const tdx::PropertyValue& varies)
{
    if (text.isEmpty() || text == gpmNoValueText())
        writeValue(noValue);
    else if (text == gpmVariesText())
        writeValue(varies);
    else
        return false;
    return true;
}

bool GPMPropertyDataBase::writeChoice(int& currentIndex, int index, const std::optional<tdx::PropertyValue>& value)
{
    const bool varied = readVaries();
    if (!value || !writeValue(*value))
        return false;
    currentIndex = index;
    return varied;
}

bool GPMPropertyDataBase::readVaries() const
{
    tdx::PropertyValue value;
    return d->property.getValue(value, std::nullopt) && (value.flags() & tdx::PropertyValue::kVaries);
}

} // namespace dbr
