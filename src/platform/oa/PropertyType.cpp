#include "PropertyType.h"

#include <QString>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>
#include <tdx/AvRxObject.h>

namespace oa {

namespace {

template<typename X>
const X* findAttribute(const AttributeCollection* attributes)
{
    if (!attributes)
        return nullptr;
    for (const auto& attribute : *attributes) {
        if (attribute && attribute->isKindOf(X::desc()))
            return static_cast<const X*>(attribute.get());
    }
    return nullptr;
}

OdString number(double value)
{
    return qut::odFromQt(QString::number(value, 'g', 6));
}

OdString colorText(const OdCmColor& color)
{
    if (color.isByLayer())
        return "ByLayer";
    if (color.isByBlock())
        return "ByBlock";
    if (color.isByACI())
        return qut::odFromQt(QStringLiteral("Color %1").arg(color.colorIndex()));
    return qut::odFromQt(QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue()));
}

} // namespace

PropertyType::PropertyType(const OdString& name)
    : m_name(name)
{}

PropertyType::~PropertyType() = default;

void PropertyType::setExtensionManager(std::unique_ptr<AvRxProtocolExtManager> manager)
{
    m_extensions = std::move(manager);
}

OdRxObject* PropertyType::queryX(const OdRxClass* cls) const
{
    if (cls && m_extensions) {
        if (OdRxObjectPtr extension = m_extensions->getX(cls))
            return extension.detach();
    }
    return OdRxObject::queryX(cls);
}

bool PropertyType::valueToString(OdString& out, const tdx::PropertyValue& value, const OdRxObject*,
                                 const AttributeCollection* attributes) const
{
    if (value.flags() & (tdx::PropertyValue::kNoValue | tdx::PropertyValue::kVaries))
        return false;
    if (const auto* enumeration = findAttribute<EnumerationAttribute>(attributes)) {
        const auto found = enumeration->value_find(value);
        if (found != enumeration->values().cend()) {
            out = found->first;
            return true;
        }
    }
    switch (value.kind()) {
    case tdx::PropertyValue::kBoolean:
        if (const auto* labels = findAttribute<BooleanValueAttribute>(attributes))
            out = value.toBool() ? labels->trueLabel() : labels->falseLabel();
        else
            out = value.toBool() ? "true" : "false";
        return true;
    case tdx::PropertyValue::kInteger: out = qut::odFromQt(QString::number(value.toInteger())); return true;
    case tdx::PropertyValue::kReal:
        if (const auto* units = findAttribute<UnitsAttribute>(attributes)) {
            const auto unit = units->bestUnit(value.toReal());
            out = units->format(value.toReal(), unit, false, 65535) + " " + units->displayName(unit);
        } else {
            out = number(value.toReal());
        }
        return true;
    case tdx::PropertyValue::kString: return value.get(out);
    case tdx::PropertyValue::kColor: {
        OdCmColor color;
        tdx::Props::getValue(value, color);
        out = colorText(color);
        return true;
    }
    case tdx::PropertyValue::kObjectId:
        // A table record by its name, such as a line type; anything else by its handle.
        if (const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(value.toObjectId().openObject()))
            out = record->getName();
        else
            out = qut::odFromQt(QStringLiteral("#%1").arg(value.toObjectId().handle(), 0, 16));
        return true;
    default: return false;
    }
}

namespace PropType {

#define OA_PROPTYPE(Name)                                                                                              \
    PropertyType* Name::getType()                                                                                      \
    {                                                                                                                  \
        static PropertyType type(#Name);                                                                               \
        return &type;                                                                                                  \
    }
OA_FOR_EACH_PROPTYPE(OA_PROPTYPE)
#undef OA_PROPTYPE

} // namespace PropType

} // namespace oa
