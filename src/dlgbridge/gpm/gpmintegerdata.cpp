#include "gpmintegerdata.h"

#include "rxmembers_p.h"

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMIntegerData, GPMPropertyDataBase, "GPMIntegerData")

GPMIntegerData::GPMIntegerData(const oa::Property& property)
    : GPMPropertyDataBase(property)
{}

GPMIntegerData::~GPMIntegerData() = default;

QString GPMIntegerData::type() const
{
    return QStringLiteral("integer");
}

QUrl GPMIntegerData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("IntegerType.qml"));
}

QString GPMIntegerData::value() const
{
    const auto [text, value] = getStringOrValue();
    if (!text.isEmpty())
        return text;
    if (!checkTyped(value, tdx::PropertyValue::kInteger))
        return QString();
    return QString::number(value.toInteger(), 10);
}

void GPMIntegerData::setValue(const QString& text)
{
    using V = tdx::PropertyValue;
    if (writeSpecialText(text, V(V::kInteger, 0, V::kIntegerBits | V::kNoValue),
                         V(V::kInteger, 0, V::kIntegerBits | V::kVaries)))
        return;
    bool ok = false;
    const qlonglong number = text.toLongLong(&ok, 10);
    if (!ok)
        return;
    if (writeValue(V::fromInteger(number)))
        Q_EMIT valueChanged();
}

} // namespace dbr
