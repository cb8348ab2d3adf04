#include "gpmstringdata.h"

#include "rxmembers_p.h"

#include <qut/qtconversions.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMStringData, GPMPropertyDataBase, "GPMStringData")

GPMStringData::GPMStringData(const oa::Property& property)
    : GPMPropertyDataBase(property)
{}

GPMStringData::~GPMStringData() = default;

QString GPMStringData::type() const
{
    return QStringLiteral("string");
}

QUrl GPMStringData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("StringType.qml"));
}

QString GPMStringData::value() const
{
    tdx::PropertyValue value;
    if (!readValue(value, false))
        return QString();
    if (value.flags() & tdx::PropertyValue::kVaries)
        return gpmVariesText();
    if (value.flags() & tdx::PropertyValue::kNoValue)
        return gpmNoValueText();
    OdString text;
    if (!value.get(text)) {
        logTypedFailure();
        return QString();
    }
    return qut::toQt(text);
}

void GPMStringData::setValue(const QString& text)
{
    if (writeValue(tdx::PropertyValue(qut::odFromQt(text))))
        Q_EMIT valueChanged();
}

} // namespace dbr
