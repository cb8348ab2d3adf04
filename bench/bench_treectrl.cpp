// The tree control against plain Qt: building rows with AppendItem against
// QStandardItemModel::appendRow, walking them with GetFirstChild/GetNextChild
// against index() through a sort proxy, and the kit's real tree view against a
// plain ListView of as many rows: expanding everything (against showing the
// rows), collapsing everything (against taking them away), and renaming every
// row while the view shows them.
#include "support/benchmain.h"
#include "support/shownqml.h"

#include <dlgbridge/views/qwxtreectrl.h>

#include <QQuickItem>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace dbr::bench {

namespace {

// Ten children per node: 100k nodes are five levels.
int parentOf(int i)
{
    return i == 0 ? -1 : (i - 1) / 10;
}

const std::vector<wxString>& wxTexts(int count)
{
    static std::vector<wxString> made;
    while (int(made.size()) < count)
        made.push_back(wxString::Format("node %zu", made.size()));
    return made;
}

const std::vector<QString>& qtTexts(int count)
{
    static std::vector<QString> made;
    while (int(made.size()) < count)
        made.push_back(QStringLiteral("node %1").arg(made.size()));
    return made;
}

void buildOurs(qwxTreeCtrl& tree, int count)
{
    const std::vector<wxString>& text = wxTexts(count);
    std::vector<qwxTreeItemId> made;
    made.reserve(std::size_t(count));
    const qwxTreeItemId root = tree.GetRootItem();
    for (int i = 0; i < count; ++i) {
        const int parent = parentOf(i);
        made.push_back(tree.AppendItem(parent < 0 ? root : made[std::size_t(parent)], text[std::size_t(i)]));
    }
}

void buildQt(QStandardItemModel& model, int count)
{
    const std::vector<QString>& text = qtTexts(count);
    std::vector<QStandardItem*> made;
    made.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        auto* item = new QStandardItem(text[std::size_t(i)]);
        const int parent = parentOf(i);
        (parent < 0 ? *model.invisibleRootItem() : *made[std::size_t(parent)]).appendRow(item);
        made.push_back(item);
    }
}

void buildWithOurs(benchmark::State& state, int count)
{
    wxTexts(count);
    Host host;
    for (auto _ : state) {
        qwxTreeCtrl tree("tree", host);
        buildOurs(tree, count);
    }
    std::unique_ptr<qwxTreeCtrl> kept;
    state.counters["bytes/node"] = bytesPerEntry(count, [&] {
        kept = std::make_unique<qwxTreeCtrl>("tree", host);
        buildOurs(*kept, count);
    });
}

// Our control always has its sort proxy listening; so may the baseline.
void buildWithQt(benchmark::State& state, int count, bool besideSortProxy)
{
    qtTexts(count);
    const auto build = [&](QStandardItemModel& model, QSortFilterProxyModel& proxy) {
        if (besideSortProxy)
            proxy.setSourceModel(&model);
        buildQt(model, count);
    };
    for (auto _ : state) {
        QStandardItemModel model;
        QSortFilterProxyModel proxy;
        build(model, proxy);
    }
    std::unique_ptr<QStandardItemModel> keptModel;
    std::unique_ptr<QSortFilterProxyModel> keptProxy;
    state.counters["bytes/node"] = bytesPerEntry(count, [&] {
        keptModel = std::make_unique<QStandardItemModel>();
        keptProxy = std::make_unique<QSortFilterProxyModel>();
        build(*keptModel, *keptProxy);
    });
}

int walkOurs(const qwxTreeCtrl& tree, const qwxTreeItemId& parent)
{
    int visited = 0;
    qwxTreeItemIdValue cookie;
    for (qwxTreeItemId child = tree.GetFirstChild(parent, cookie); child.IsOk();
         child = tree.GetNextChild(child, cookie))
        visited += 1 + walkOurs(tree, child);
    return visited;
}

int walkQt(const QAbstractItemModel& model, const QModelIndex& parent)
{
    int visited = 0;
    for (int row = 0, rows = model.rowCount(parent); row < rows; ++row)
        visited += 1 + walkQt(model, model.index(row, 0, parent));
    return visited;
}

void walkWithOurs(benchmark::State& state, int count)
{
    Host host;
    qwxTreeCtrl tree("tree", host);
    buildOurs(tree, count);
    for (auto _ : state)
        benchmark::DoNotOptimize(walkOurs(tree, tree.GetRootItem()));
}

// What a sorted plain-Qt tree walks: the same rows through a sort proxy.
void walkWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    buildQt(model, count);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    for (auto _ : state)
        benchmark::DoNotOptimize(walkQt(proxy, QModelIndex()));
}

// Our tree in the kit's tree view, all rows built and the control linked to the view.
struct ShownTree
{
    explicit ShownTree(int count)
        : qml("TreeViewAV { objectName: 'tree'; anchors.fill: parent }")
        , tree("tree", qml.host())
    {
        buildOurs(tree, count);
        tree.resyncToUI();
        ShownQml::settle();
    }

    ShownQml qml;
    qwxTreeCtrl tree;
};

// The baseline view: a plain ListView showing as many rows as our tree shows expanded.
struct ShownList
{
    explicit ShownList(int count)
        : qml("ListView { objectName: 'list'; anchors.fill: parent; delegate: Text { text: display } }")
        , list(qml.item("list"))
    {
        for (const QString& text : qtTexts(count))
            rows.appendRow(new QStandardItem(text));
    }

    void show(QAbstractItemModel* model)
    {
        list->setProperty("model", QVariant::fromValue<QObject*>(model));
        ShownQml::settle();
    }

    ShownQml qml;
    QObject* list;
    QStandardItemModel rows;
};

// Rows built while the view shows the tree, sorted, then taken in by the view.
void buildShownWithOurs(benchmark::State& state, int count)
{
    ShownQml qml("TreeViewAV { objectName: 'tree'; anchors.fill: parent }");
    for (auto _ : state) {
        qwxTreeCtrl tree("tree", qml.host());
        tree.resyncToUI();
        tree.setIsSorted();
        buildOurs(tree, count);
        ShownQml::settle();
    }
}

void buildShownWithQt(benchmark::State& state, int count)
{
    ShownList shown(0);
    for (auto _ : state) {
        QStandardItemModel model;
        shown.show(&model);
        for (const QString& text : qtTexts(count))
            model.appendRow(new QStandardItem(text));
        ShownQml::settle();
        shown.show(nullptr);
    }
}

void expandAllWithOurs(benchmark::State& state, int count)
{
    ShownTree shown(count);
    for (auto _ : state) {
        shown.tree.ExpandAll(shown.tree.GetRootItem());
        ShownQml::settle();
        state.PauseTiming();
        shown.tree.CollapseAll(shown.tree.GetRootItem());
        ShownQml::settle();
        state.ResumeTiming();
    }
}

void expandAllWithQt(benchmark::State& state, int count)
{
    ShownList shown(count);
    for (auto _ : state) {
        shown.show(&shown.rows);
        state.PauseTiming();
        shown.show(nullptr);
        state.ResumeTiming();
    }
}

void collapseAllWithOurs(benchmark::State& state, int count)
{
    ShownTree shown(count);
    for (auto _ : state) {
        state.PauseTiming();
        shown.tree.ExpandAll(shown.tree.GetRootItem());
        ShownQml::settle();
        state.ResumeTiming();
        shown.tree.CollapseAll(shown.tree.GetRootItem());
        ShownQml::settle();
    }
}

void collapseAllWithQt(benchmark::State& state, int count)
{
    ShownList shown(count);
    for (auto _ : state) {
        state.PauseTiming();
        shown.show(&shown.rows);
        state.ResumeTiming();
        shown.show(nullptr);
    }
}

// Every row renamed while the view shows them all.
void setTextWithOurs(benchmark::State& state, int count)
{
    ShownTree shown(count);
    shown.tree.ExpandAll(shown.tree.GetRootItem());
    std::vector<qwxTreeItemId> nodes;
    shown.tree.GetModel()->traverseTree([&nodes](const TreeCtrlModelBase::Item& item) {
        nodes.emplace_back(const_cast<TreeCtrlModelBase::Item*>(&item));
        return qut::TreeWalk::Continue;
    });
    const std::vector<wxString>& text = wxTexts(2 * count);
    int round = 0;
    for (auto _ : state) {
        const std::size_t offset = std::size_t(count * (++round % 2));
        for (std::size_t i = 0; i < nodes.size(); ++i)
            shown.tree.SetItemText(nodes[i], text[offset + i]);
        ShownQml::settle();
    }
}

void setTextWithQt(benchmark::State& state, int count)
{
    ShownList shown(count);
    shown.show(&shown.rows);
    const std::vector<QString>& text = qtTexts(2 * count);
    int round = 0;
    for (auto _ : state) {
        const int offset = count * (++round % 2);
        for (int row = 0; row < count; ++row)
            shown.rows.item(row)->setText(text[std::size_t(offset + row)]);
        ShownQml::settle();
    }
}

} // namespace

void registerBenchmarks()
{
    for (int count : {1000, 10000, 100000}) {
        registerPair(
            "build/" + std::to_string(count), buildWithOurs,
            [](benchmark::State& state, int nodes) { buildWithQt(state, nodes, false); }, count);
        registerPair(
            "buildBesideSortProxy/" + std::to_string(count), buildWithOurs,
            [](benchmark::State& state, int nodes) { buildWithQt(state, nodes, true); }, count);
        registerPair("walk/" + std::to_string(count), walkWithOurs, walkWithQt, count);
    }
    for (int count : {1000, 10000}) {
        registerPair("buildShown/" + std::to_string(count), buildShownWithOurs, buildShownWithQt, count);
        registerPair("expandAllShown/" + std::to_string(count), expandAllWithOurs, expandAllWithQt, count);
        registerPair("collapseAllShown/" + std::to_string(count), collapseAllWithOurs, collapseAllWithQt, count);
        registerPair("setTextShown/" + std::to_string(count), setTextWithOurs, setTextWithQt, count);
    }
}

} // namespace dbr::bench
