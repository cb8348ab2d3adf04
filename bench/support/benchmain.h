#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

namespace dbr::bench {

// Registers the program's benchmarks; each pair is named ".../ours" and ".../qt".
void registerBenchmarks();

// Bytes of the heap in use now; the difference around a build is what it holds.
std::size_t heapInUse();

// The heap a build holds, per entry it made.
template<typename Build>
double bytesPerEntry(int count, Build build)
{
    const std::size_t before = heapInUse();
    build();
    return double(heapInUse() - before) / count;
}

// Registers ours and its plain-Qt baseline under one name, timed in microseconds.
template<typename Ours, typename Baseline, typename... Args>
void registerPair(const std::string& name, Ours ours, Baseline baseline, Args... args)
{
    benchmark::RegisterBenchmark((name + "/ours").c_str(), ours, args...)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((name + "/qt").c_str(), baseline, args...)->Unit(benchmark::kMicrosecond);
}

} // namespace dbr::bench
