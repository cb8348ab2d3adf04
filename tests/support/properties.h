#pragma once

#include <oa/Property.h>
#include <oda/OdRxObjectImpl.h>
#include <tdx/AvSmartPtr.h>

#include <memory>
#include <utility>

namespace dbr::test {

// A counted attribute of class X, ready for a property's attribute list.
template<typename X, typename... Arguments>
OdSmartPtr<const oa::Attribute> attribute(Arguments&&... arguments)
{
    return OdRxObjectImpl<X>::createObject(std::forward<Arguments>(arguments)...);
}

inline std::unique_ptr<oa::Property> makeProperty(oa::PropertyType* type, tdx::PropertyValue value,
                                                  oa::AttributeCollection attributes = {})
{
    return std::make_unique<oa::Property>("Global", "Name", type, std::move(value), std::move(attributes),
                                          "What it is");
}

// Metres with kilometres and millimetres: a factor turns the unit into metres.
inline OdSmartPtr<const oa::Attribute> metres()
{
    return attribute<oa::UnitsAttribute>(oa::UnitsAttribute::Units{{"m", 1.0}, {"km", 1000.0}, {"mm", 0.001}});
}

} // namespace dbr::test
