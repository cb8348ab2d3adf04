// Property items: made by their type's factory, read and written through their
// meta-object, against plain QObjects with the same dynamic property, which is
// what a panel without items would hold per row.
#include "support/benchmain.h"

#include <dlgbridge/gpm/factoryfunction.h>
#include <dlgbridge/gpm/gpmtreedata.h>
#include <dlgbridge/gpm/gpmtreedatafactory.h>

#include <QObject>
#include <QVariant>

#include <oa/Property.h>
#include <oda/OdRxObjectImpl.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace dbr::bench {

namespace {

using V = tdx::PropertyValue;

// Lengths in metres, shown in their best unit, as most numbers of a panel are.
std::vector<std::unique_ptr<oa::Property>> lengths(int count)
{
    const OdSmartPtr<const oa::Attribute> metres = OdRxObjectImpl<oa::UnitsAttribute>::createObject(
        oa::UnitsAttribute::Units{{"m", 1.0}, {"mm", 0.001}, {"km", 1000.0}});
    std::vector<std::unique_ptr<oa::Property>> properties;
    for (int i = 0; i < count; ++i)
        properties.push_back(std::make_unique<oa::Property>("Length", "Length", oa::PropType::Length::getType(),
                                                            V(1.5 + i), oa::AttributeCollection{metres}));
    return properties;
}

std::vector<AvSmartPtr<GPMTreeData>> itemsOf(const std::vector<std::unique_ptr<oa::Property>>& properties)
{
    std::vector<AvSmartPtr<GPMTreeData>> items;
    for (const auto& property : properties)
        items.push_back(FactoryFunction::queryX(property->type())->create(*property));
    return items;
}

std::vector<std::unique_ptr<QObject>> plainObjects(int count)
{
    std::vector<std::unique_ptr<QObject>> objects;
    for (int i = 0; i < count; ++i) {
        objects.push_back(std::make_unique<QObject>());
        objects.back()->setProperty("value", QString::number(1.5 + i));
    }
    return objects;
}

void makeItems(benchmark::State& state, int count)
{
    const auto properties = lengths(count);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t before = heapInUse();
        auto items = itemsOf(properties);
        bytes = heapInUse() - before;
        benchmark::DoNotOptimize(items.data());
    }
    state.counters["bytesPerRow"] = double(bytes) / count;
}

void makePlainObjects(benchmark::State& state, int count)
{
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::size_t before = heapInUse();
        auto objects = plainObjects(count);
        bytes = heapInUse() - before;
        benchmark::DoNotOptimize(objects.data());
    }
    state.counters["bytesPerRow"] = double(bytes) / count;
}

void readItems(benchmark::State& state, int count)
{
    const auto properties = lengths(count);
    const auto items = itemsOf(properties);
    for (auto _ : state) {
        for (const auto& item : items)
            benchmark::DoNotOptimize(item->property("value"));
    }
}

void readPlainObjects(benchmark::State& state, int count)
{
    const auto objects = plainObjects(count);
    for (auto _ : state) {
        for (const auto& object : objects)
            benchmark::DoNotOptimize(object->property("value"));
    }
}

void writeItems(benchmark::State& state, int count)
{
    const auto properties = lengths(count);
    const auto items = itemsOf(properties);
    for (auto _ : state) {
        for (const auto& item : items)
            benchmark::DoNotOptimize(item->setProperty("value", QStringLiteral("2.5")));
    }
}

void writePlainObjects(benchmark::State& state, int count)
{
    const auto objects = plainObjects(count);
    for (auto _ : state) {
        for (const auto& object : objects)
            benchmark::DoNotOptimize(object->setProperty("value", QStringLiteral("2.5")));
    }
}

} // namespace

void registerBenchmarks()
{
    fillGPMTreeDataFactory();
    for (int count : {10, 100, 1000, 10000}) {
        const std::string size = "/" + std::to_string(count);
        registerPair("makeItems" + size, makeItems, makePlainObjects, count);
        registerPair("readValue" + size, readItems, readPlainObjects, count);
        registerPair("writeValue" + size, writeItems, writePlainObjects, count);
    }
}

} // namespace dbr::bench
