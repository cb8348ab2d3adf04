// A property write through a wrapper against findChild plus QObject::setProperty
// on the same tree, for targets found at once, found last and not found.
#include "support/benchmain.h"
#include "support/benchtree.h"

#include <QQuickItem>

#include <qut/qtconversions.h>

#include <benchmark/benchmark.h>

#include <map>

namespace dbr::bench {

namespace {

BenchTree& treeOfSize(int size)
{
    static std::map<int, std::unique_ptr<BenchTree>> trees;
    auto& tree = trees[size];
    if (!tree)
        tree = std::make_unique<BenchTree>(size);
    return *tree;
}

using TargetOf = QString (*)(const BenchTree&);

void writeThroughWrapper(benchmark::State& state, TargetOf target, int size)
{
    BenchTree& tree = treeOfSize(size);
    BenchHost host(tree.root());
    BenchControl control(qut::odFromQt(target(tree)), host);
    bool enabled = false;
    for (auto _ : state) {
        enabled = !enabled;
        benchmark::DoNotOptimize(control.setQmlProperty("enabled", enabled));
    }
}

void writeThroughFindChild(benchmark::State& state, TargetOf target, int size)
{
    BenchTree& tree = treeOfSize(size);
    const QString name = target(tree);
    bool enabled = false;
    for (auto _ : state) {
        enabled = !enabled;
        QObject* item = tree.root().findChild<QObject*>(name);
        benchmark::DoNotOptimize(item && item->setProperty("enabled", enabled));
    }
}

} // namespace

void registerBenchmarks()
{
    const std::pair<const char*, TargetOf> targets[] = {
        {"front", [](const BenchTree&) { return BenchTree::frontName(); }},
        {"deep", [](const BenchTree& tree) { return tree.deepName(); }},
        {"missing", [](const BenchTree&) { return BenchTree::missingName(); }},
    };
    for (const auto& [where, target] : targets) {
        for (int size : {10, 100, 1000, 10000}) {
            const std::string name = std::string("setQmlProperty/") + where + "/" + std::to_string(size);
            benchmark::RegisterBenchmark((name + "/ours").c_str(), writeThroughWrapper, target, size);
            benchmark::RegisterBenchmark((name + "/qt").c_str(), writeThroughFindChild, target, size);
        }
    }
}

} // namespace dbr::bench
