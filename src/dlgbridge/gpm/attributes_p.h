#pragma once

#include <oa/Property.h>
#include <tdx/AvSmartPtr.h>

namespace dbr {

// The property's attribute of class X, cast to it; null when it has none.
template<typename X>
AvSmartPtr<const X> attributeOf(const oa::Property& property)
{
    AvSmartPtr<const OdRxObject> found = property.getAttribute(X::desc(), std::nullopt);
    if (!found || !found->isKindOf(X::desc()))
        return AvSmartPtr<const X>();
    return AvSmartPtr<const X>(static_cast<const X*>(found.get()));
}

} // namespace dbr
