#pragma once

#include <cstdint>

namespace dbr::stress {

// One seed's run: random QML under a dialog, an application's panel and loose
// panels, driven by that many random operations. With trace, each operation
// is printed before it runs.
void runScenario(std::uint32_t seed, int operations, bool trace);

} // namespace dbr::stress
