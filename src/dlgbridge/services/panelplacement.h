#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <oda/OdString.h>

#include <array>
#include <cstdint>

namespace dbr {

// Where the application first puts a panel. Nothing in this library reads
// these records; the two pairs of numbers are kept as the application has them.
struct PanelPlacement
{
    // "RDOCK", "LDOCK", "SHAPE" or empty.
    OdString dock;
    std::int32_t index;
    bool flag;
    std::int32_t a;
    std::int32_t b;
    std::int32_t c;
    std::int32_t d;
    std::int32_t width;
    std::int32_t height;
};

extern DLGBRIDGE_EXPORT const std::array<PanelPlacement, 32> defaultPanelPlacements;

} // namespace dbr
