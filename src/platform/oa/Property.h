#pragma once

#include <oa/PropertyAttributes.h>
#include <oa/PropertyType.h>
#include <oda/OdString.h>
#include <tdx/PropertyValue.h>
#include <ut/UUID.h>

#include <functional>
#include <optional>

namespace oa {

// Stand-in for one property of the property system, here of one object in
// memory: a type, names, attributes and its current value. The object argument
// of the real property (which object of a selection) is accepted and ignored:
// one property stands for the whole selection.
class Property
{
public:
    using Object = std::optional<const OdRxObject*>;

    Property(const OdString& globalName, const OdString& localName, PropertyType* type, tdx::PropertyValue value,
             AttributeCollection attributes = {}, const OdString& description = OdString());
    virtual ~Property();
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    PropertyType* type() const { return m_type; }
    const ut::UUID& GUID() const { return m_guid; }
    OdString globalName() const { return m_globalName; }
    OdString localName() const { return m_localName; }
    OdString description() const { return m_description; }

    virtual bool getValue(tdx::PropertyValue& value, Object object) const;
    // Refused for a read-only property and for a value its check turns down.
    // The property only describes; the value belongs to the object, so even a
    // const property writes it.
    virtual bool setValue(const tdx::PropertyValue& value, Object object) const;

    const AttributeCollection& attributes(Object object) const;
    // The first attribute of class cls or one derived from it; null when there is none.
    OdSmartPtr<const OdRxObject> getAttribute(const OdRxClass* cls, Object object) const;
    // Carrying a ReadOnlyAttribute.
    bool isReadOnly(Object object) const;

    // Not in the application's property: what a fixture needs.
    // A check on values written; a write it turns down leaves the value as it was.
    void setCheck(std::function<bool(const tdx::PropertyValue&)> check) { m_check = std::move(check); }
    // Makes getValue fail, as for an object that went away.
    void setReadable(bool readable) { m_readable = readable; }
    const tdx::PropertyValue& storedValue() const { return m_value; }

private:
    OdString m_globalName;
    OdString m_localName;
    OdString m_description;
    PropertyType* m_type;
    mutable tdx::PropertyValue m_value;
    AttributeCollection m_attributes;
    ut::UUID m_guid = ut::UUID::generate();
    std::function<bool(const tdx::PropertyValue&)> m_check;
    bool m_readable = true;
};

// Stand-in for a group of properties, shown under one heading.
class PropertyCategory
{
public:
    PropertyCategory(const OdString& localName, unsigned int sortWeight);
    virtual ~PropertyCategory();

    virtual const ut::UUID& GUID() const { return m_guid; }
    virtual OdString localName() const { return m_localName; }
    // Lighter categories come first.
    virtual unsigned int sortWeight() const { return m_sortWeight; }

private:
    OdString m_localName;
    unsigned int m_sortWeight;
    ut::UUID m_guid = ut::UUID::generate();
};

} // namespace oa
