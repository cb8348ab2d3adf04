#pragma once

#include <oda/OdSmartPtr.h>

// Stand-in for the application's smart pointer to runtime objects. The
// application's own is a twin of the SDK's; here it is the same template.
template<typename T>
using AvSmartPtr = OdSmartPtr<T>;
