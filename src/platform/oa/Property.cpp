#include "Property.h"

#include <utility>

namespace oa {

Property::Property(const OdString& globalName, const OdString& localName, PropertyType* type, tdx::PropertyValue value,
                   AttributeCollection attributes, const OdString& description)
    : m_globalName(globalName)
    , m_localName(localName)
    , m_description(description)
    , m_type(type)
    , m_value(std::move(value))
    , m_attributes(std::move(attributes))
{}

Property::~Property() = default;

bool Property::getValue(tdx::PropertyValue& value, Object) const
{
    if (!m_readable)
        return false;
    value = m_value;
    return true;
}

bool Property::setValue(const tdx::PropertyValue& value, Object object) const
{
    if (isReadOnly(object) || (m_check && !m_check(value)))
        return false;
    m_value = value;
    return true;
}

const AttributeCollection& Property::attributes(Object) const
{
    return m_attributes;
}

OdSmartPtr<const OdRxObject> Property::getAttribute(const OdRxClass* cls, Object) const
{
    for (const auto& attribute : m_attributes) {
        if (attribute && attribute->isKindOf(cls))
            return OdSmartPtr<const OdRxObject>(attribute.get());
    }
    return OdSmartPtr<const OdRxObject>();
}

bool Property::isReadOnly(Object object) const
{
    return bool(getAttribute(ReadOnlyAttribute::desc(), object));
}

PropertyCategory::PropertyCategory(const OdString& localName, unsigned int sortWeight)
    : m_localName(localName)
    , m_sortWeight(sortWeight)
{}

PropertyCategory::~PropertyCategory() = default;

} // namespace oa
