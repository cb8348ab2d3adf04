#pragma once

#include <dlgbridge/dlgbridge_export.h>

namespace dbr {

// Attach to each property type the factory of its items, and take them off
// again. The application calls these at the start and the stop of its property
// system, after the library is loaded and before it is unloaded.
DLGBRIDGE_EXPORT void fillGPMTreeDataFactory();
DLGBRIDGE_EXPORT void clearGPMTreeDataFactory();

} // namespace dbr
