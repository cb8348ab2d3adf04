// The walk that wraps a whole tree against QObject::findChildren over it.
#include "support/benchmain.h"
#include "support/benchtree.h"

#include <QQuickItem>

#include <benchmark/benchmark.h>

namespace dbr::bench {

namespace {

void populate(benchmark::State& state, int size)
{
    BenchTree tree(size);
    BenchHost host(tree.root());
    for (auto _ : state)
        host.list().populate(tree.root());
    state.counters["wrappers"] = double(host.list().children().size());
}

void findAllChildren(benchmark::State& state, int size)
{
    BenchTree tree(size);
    for (auto _ : state)
        benchmark::DoNotOptimize(tree.root().findChildren<QObject*>());
}

} // namespace

void registerBenchmarks()
{
    for (int size : {10, 100, 1000, 10000}) {
        const std::string name = "populate/" + std::to_string(size);
        benchmark::RegisterBenchmark((name + "/ours").c_str(), populate, size);
        benchmark::RegisterBenchmark((name + "/qt").c_str(), findAllChildren, size);
    }
}

} // namespace dbr::bench
