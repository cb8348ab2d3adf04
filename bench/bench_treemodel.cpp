// The tree model against QStandardItemModel: building, moving, deleting and
// walking, and the index of a child, whose row our nodes don't store.
#include "support/benchmain.h"

#include <dlgbridge/views/treemodel.h>

#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dbr::bench {

namespace {

struct Payload
{
    QString text;
};

using Item = qut::TreeItem<Payload>;

class BenchTreeModel : public qut::TreeModel<Payload>
{
public:
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 1; }
    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Item* item = getTreeItem(index);
        return item && role == Qt::DisplayRole ? QVariant(item->data.text) : QVariant();
    }
};

// The parent of node i in creation order, -1 for the node given as top.
using ParentOf = int (*)(int);

int flat(int)
{
    return -1;
}

// Chains a hundred deep side by side; one chain of 100k would be a test of
// the stack, not of the model.
int deep(int i)
{
    return i % 100 == 0 ? -1 : i - 1;
}

// Ten children per node, five levels for 100k nodes.
int bushy(int i)
{
    return i == 0 ? -1 : (i - 1) / 10;
}

// Texts are made once and shared, so that both sides pay only for structure.
const std::vector<QString>& texts(int count)
{
    static std::vector<QString> made;
    while (int(made.size()) < count)
        made.push_back(QStringLiteral("node %1").arg(made.size()));
    return made;
}

void buildOurs(BenchTreeModel& model, Item& top, int count, ParentOf parentOf)
{
    const std::vector<QString>& text = texts(count);
    std::vector<Item*> made;
    made.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        auto item = std::make_unique<Item>();
        item->data.text = text[std::size_t(i)];
        const int parent = parentOf(i);
        made.push_back(model.appendItem(parent < 0 ? top : *made[std::size_t(parent)], std::move(item)));
    }
}

void buildQt(QStandardItem& top, int count, ParentOf parentOf)
{
    const std::vector<QString>& text = texts(count);
    std::vector<QStandardItem*> made;
    made.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        auto* item = new QStandardItem(text[std::size_t(i)]);
        const int parent = parentOf(i);
        (parent < 0 ? top : *made[std::size_t(parent)]).appendRow(item);
        made.push_back(item);
    }
}

// Heap bytes a whole model of count nodes holds, per node.
template<typename Model, typename Build>
double bytesPerNode(int count, Build build)
{
    texts(count);
    std::unique_ptr<Model> model;
    return bytesPerEntry(count, [&] {
        model = std::make_unique<Model>();
        build(*model);
    });
}

void buildWithOurs(benchmark::State& state, ParentOf shape, int count)
{
    texts(count);
    for (auto _ : state) {
        BenchTreeModel model;
        buildOurs(model, *model.root(), count, shape);
    }
    state.counters["bytes/node"] = bytesPerNode<BenchTreeModel>(
        count, [&](BenchTreeModel& model) { buildOurs(model, *model.root(), count, shape); });
}

void buildWithQt(benchmark::State& state, ParentOf shape, int count)
{
    texts(count);
    for (auto _ : state) {
        QStandardItemModel model;
        buildQt(*model.invisibleRootItem(), count, shape);
    }
    state.counters["bytes/node"] = bytesPerNode<QStandardItemModel>(
        count, [&](QStandardItemModel& model) { buildQt(*model.invisibleRootItem(), count, shape); });
}

// Each iteration moves every child of one parent to the other, one by one,
// taking the first row or the last.
void moveWithOurs(benchmark::State& state, bool fromFront, int count)
{
    BenchTreeModel model;
    Item* from = model.appendItem(*model.root(), std::make_unique<Item>());
    Item* to = model.appendItem(*model.root(), std::make_unique<Item>());
    buildOurs(model, *from, count, flat);
    for (auto _ : state) {
        while (!from->children.empty())
            model.moveItem(fromFront ? *from->children.front() : *from->children.back(), *to);
        std::swap(from, to);
    }
}

void moveWithQt(benchmark::State& state, bool fromFront, int count)
{
    QStandardItemModel model;
    QStandardItem* from = new QStandardItem;
    QStandardItem* to = new QStandardItem;
    model.appendRow(from);
    model.appendRow(to);
    buildQt(*from, count, flat);
    for (auto _ : state) {
        while (from->rowCount() > 0)
            to->appendRow(from->takeRow(fromFront ? 0 : from->rowCount() - 1));
        std::swap(from, to);
    }
}

void deleteSubtreeWithOurs(benchmark::State& state, int count)
{
    BenchTreeModel model;
    for (auto _ : state) {
        state.PauseTiming();
        buildOurs(model, *model.appendItem(*model.root(), std::make_unique<Item>()), count, bushy);
        state.ResumeTiming();
        model.deleteItem(*model.root(), 0);
    }
}

void deleteSubtreeWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    for (auto _ : state) {
        state.PauseTiming();
        auto* top = new QStandardItem;
        model.appendRow(top);
        buildQt(*top, count, bushy);
        state.ResumeTiming();
        model.removeRow(0);
    }
}

void walkWithOurs(benchmark::State& state, int count)
{
    BenchTreeModel model;
    buildOurs(model, *model.root(), count, bushy);
    for (auto _ : state) {
        int visited = 0;
        model.traverseTree([&visited](const Item&) {
            ++visited;
            return qut::TreeWalk::Continue;
        });
        benchmark::DoNotOptimize(visited);
    }
}

void walkWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    buildQt(*model.invisibleRootItem(), count, bushy);
    for (auto _ : state) {
        int visited = 0;
        std::vector<QStandardItem*> pending{model.invisibleRootItem()};
        while (!pending.empty()) {
            QStandardItem* item = pending.back();
            pending.pop_back();
            for (int row = 0; row < item->rowCount(); ++row) {
                ++visited;
                pending.push_back(item->child(row));
            }
        }
        benchmark::DoNotOptimize(visited);
    }
}

// The last of count children: our row search scans them all.
void indexWithOurs(benchmark::State& state, int count)
{
    BenchTreeModel model;
    buildOurs(model, *model.root(), count, flat);
    const Item* last = model.root()->children.back().get();
    for (auto _ : state)
        benchmark::DoNotOptimize(model.createItemIndex(last));
}

void indexWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    buildQt(*model.invisibleRootItem(), count, flat);
    const QStandardItem* last = model.item(count - 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(last->index());
}

} // namespace

void registerBenchmarks()
{
    const std::pair<const char*, ParentOf> shapes[] = {{"flat", flat}, {"deep", deep}, {"bushy", bushy}};
    for (const auto& [shape, parentOf] : shapes) {
        for (int count : {1000, 10000, 100000})
            registerPair("build/" + std::string(shape) + "/" + std::to_string(count), buildWithOurs, buildWithQt,
                         parentOf, count);
    }
    for (bool fromFront : {true, false}) {
        for (int count : {100, 1000, 10000})
            registerPair(std::string("move/") + (fromFront ? "first" : "last") + "/" + std::to_string(count),
                         moveWithOurs, moveWithQt, fromFront, count);
    }
    for (int count : {1000, 10000, 100000}) {
        registerPair("deleteSubtree/" + std::to_string(count), deleteSubtreeWithOurs, deleteSubtreeWithQt, count);
        registerPair("walk/" + std::to_string(count), walkWithOurs, walkWithQt, count);
    }
    for (int count : {10, 100, 1000, 10000})
        registerPair("indexOfLastChild/" + std::to_string(count), indexWithOurs, indexWithQt, count);
}

} // namespace dbr::bench
