#include "panelplacement.h"

namespace dbr {

namespace {

PanelPlacement placement(const char* dock, std::int32_t a, std::int32_t b, std::int32_t c, std::int32_t d,
                         std::int32_t width, std::int32_t height)
{
    return PanelPlacement{OdString(dock), -1, false, a, b, c, d, width, height};
}

} // namespace

const std::array<PanelPlacement, 32> defaultPanelPlacements = {
    placement("RDOCK", 2, 2, 0, 0, 300, 372),   placement("RDOCK", 2, 3, 0, 0, 330, 372),
    placement("RDOCK", 2, 2, 0, 0, 330, 372),   placement("", 2, 3, 0, 0, 300, 372),
    placement("", 1, 3, 0, 0, 305, 600),        placement("LDOCK", 1, 4, 300, 160, 200, 600),
    placement("LDOCK", 2, 2, 0, 0, 330, 372),   placement("LDOCK", 2, 3, 0, 0, 330, 372),
    placement("LDOCK", 1, 3, 0, 0, 305, 600),   placement("LDOCK", 2, 2, 0, 0, 330, 372),
    placement("", 2, 2, 0, 0, 330, 372),        placement("LDOCK", 2, 2, 0, 0, 430, 300),
    placement("LDOCK", 2, 2, 0, 0, 430, 372),   placement("LDOCK", 2, 3, 0, 0, 330, 372),
    placement("RDOCK", 2, 2, 0, 0, 430, 300),   placement("RDOCK", 1, 3, 0, 0, 330, 372),
    placement("", 2, 2, 0, 0, 330, 372),        placement("RDOCK", 2, 3, 0, 0, 330, 500),
    placement("RDOCK", 1, 1, 5, 0, 200, 100),   placement("RDOCK", 0, 0, -1, 20, 0, 0),
    placement("RDOCK", 2, 3, 0, 0, 330, 372),   placement("LDOCK", 2, 2, 0, 0, 300, 372),
    placement("LDOCK", 1, 3, 0, 0, 305, 600),   placement("RDOCK", 1, 3, 0, 0, 330, 372),
    placement("LDOCK", 2, 3, 0, 0, 330, 372),   placement("LDOCK", 2, 2, 0, 0, 430, 300),
    placement("RDOCK", 1, 3, 0, 0, 305, 600),   placement("SHAPE", 18, 0, 7, 0, 200, 100),
    placement("SHAPE", 1, 3, 0, 0, 305, 600),   placement("SHAPE", 2, 2, 0, 0, 330, 372),
    placement("SHAPE", 2, 3, 0, 0, 330, 372),   placement("SHAPE", 2, 1, 0, 1, 200, 200),
};

} // namespace dbr
