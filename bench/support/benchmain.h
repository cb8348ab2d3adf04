#pragma once

namespace dbr::bench {

// Registers the program's benchmarks; each pair is named ".../ours" and ".../qt".
void registerBenchmarks();

} // namespace dbr::bench
