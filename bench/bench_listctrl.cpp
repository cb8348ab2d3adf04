// The list control against plain Qt: filling a report list of three columns
// with InsertItem and SetItem against QStandardItemModel::appendRow, replacing
// every row, a case-blind search, removing rows from the front and the bytes a
// row holds; then a filter typed into the kit's list view of many rows against
// a plain ListView over a QSortFilterProxyModel.
#include "support/benchmain.h"
#include "support/shownqml.h"

#include <dlgbridge/views/qwxlistctrl.h>

#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <qut/qtconversions.h>

#include <memory>
#include <string>
#include <vector>

namespace dbr::bench {

namespace {

constexpr int columns = 3;
// Rows removed from the front in one measurement.
constexpr int removedRows = 100;

// The cells of row i: a name, a size and a layout.
QString cellText(int row, int column)
{
    switch (column) {
    case 0: return QStringLiteral("drawing %1.dwg").arg(row);
    case 1: return QStringLiteral("%1 kB").arg(row % 5000);
    }
    return QStringLiteral("layout %1").arg(row % 7);
}

const std::vector<std::vector<wxString>>& wxCells(int count)
{
    static std::vector<std::vector<wxString>> made;
    while (int(made.size()) < count) {
        const int row = int(made.size());
        made.push_back({qut::wxFromQt(cellText(row, 0)), qut::wxFromQt(cellText(row, 1)),
                        qut::wxFromQt(cellText(row, 2))});
    }
    return made;
}

const std::vector<std::vector<QString>>& qtCells(int count)
{
    static std::vector<std::vector<QString>> made;
    while (int(made.size()) < count) {
        const int row = int(made.size());
        made.push_back({cellText(row, 0), cellText(row, 1), cellText(row, 2)});
    }
    return made;
}

// An item with what a list control writes, and no view: the model alone is measured.
const QByteArray bareItem = "Item { objectName: 'list'; property var model; property int filterRole }";

void fillOurs(qwxListCtrl& list, int count, int from = 0)
{
    const auto& cells = wxCells(from + count);
    for (int row = from; row < from + count; ++row) {
        const auto& texts = cells[std::size_t(row)];
        const long at = list.InsertItem(list.GetCount(), texts[0]);
        list.SetItem(at, 1, texts[1]);
        list.SetItem(at, 2, texts[2]);
    }
}

std::unique_ptr<qwxListCtrl> reportList(ShownQml& qml, int count)
{
    auto list = std::make_unique<qwxListCtrl>("list", qml.host());
    list->InsertColumn(0, "Name");
    list->InsertColumn(1, "Size");
    list->InsertColumn(2, "Layout");
    fillOurs(*list, count);
    return list;
}

void fillQt(QStandardItemModel& model, int count)
{
    model.setColumnCount(columns);
    model.setHorizontalHeaderLabels({"Name", "Size", "Layout"});
    for (const auto& texts : qtCells(count))
        model.appendRow({new QStandardItem(texts[0]), new QStandardItem(texts[1]), new QStandardItem(texts[2])});
}

void fillWithOurs(benchmark::State& state, int count)
{
    wxCells(count);
    ShownQml qml(bareItem);
    for (auto _ : state)
        reportList(qml, count);
    std::unique_ptr<qwxListCtrl> kept;
    state.counters["bytes/row"] = bytesPerEntry(count, [&] { kept = reportList(qml, count); });
}

void fillWithQt(benchmark::State& state, int count)
{
    qtCells(count);
    for (auto _ : state) {
        QStandardItemModel model;
        fillQt(model, count);
    }
    auto kept = std::make_unique<QStandardItemModel>();
    state.counters["bytes/row"] = bytesPerEntry(count, [&] { fillQt(*kept, count); });
}

wxArrayString wxFirstCells(int count)
{
    wxArrayString texts;
    for (const auto& cells : wxCells(count))
        texts.Add(cells[0]);
    return texts;
}

// Every row replaced by as many new ones.
void resetWithOurs(benchmark::State& state, int count)
{
    ShownQml qml(bareItem);
    qwxListCtrl list("list", qml.host());
    const wxArrayString texts = wxFirstCells(count);
    list.reset(texts);
    for (auto _ : state)
        list.reset(texts);
}

void resetWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    const auto& cells = qtCells(count);
    for (auto _ : state) {
        model.clear();
        for (const auto& texts : cells)
            model.appendRow(new QStandardItem(texts[0]));
    }
}

// A case-blind search that finds the last row.
void findWithOurs(benchmark::State& state, int count)
{
    ShownQml qml(bareItem);
    const std::unique_ptr<qwxListCtrl> list = reportList(qml, count);
    const wxString wanted = wxCells(count)[std::size_t(count - 1)][0].Upper();
    for (auto _ : state)
        benchmark::DoNotOptimize(list->FindItem(0, wanted));
}

void findWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    fillQt(model, count);
    const QString wanted = qtCells(count)[std::size_t(count - 1)][0].toUpper();
    for (auto _ : state)
        benchmark::DoNotOptimize(model.findItems(wanted, Qt::MatchFixedString));
}

void removeFrontWithOurs(benchmark::State& state, int count)
{
    ShownQml qml(bareItem);
    const std::unique_ptr<qwxListCtrl> list = reportList(qml, count);
    for (auto _ : state) {
        for (int i = 0; i < removedRows; ++i)
            list->DeleteItem(0);
        state.PauseTiming();
        fillOurs(*list, removedRows);
        state.ResumeTiming();
    }
}

void removeFrontWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    fillQt(model, count);
    for (auto _ : state) {
        for (int i = 0; i < removedRows; ++i)
            model.removeRow(0);
        state.PauseTiming();
        for (const auto& texts : qtCells(removedRows))
            model.appendRow({new QStandardItem(texts[0]), new QStandardItem(texts[1]), new QStandardItem(texts[2])});
        state.ResumeTiming();
    }
}

// One key typed into a search field: the filter changes and the view shows the
// rows left, in the window's next frame. Then, untimed, the filter goes again.
template<typename SetFilter>
void typeFilter(benchmark::State& state, SetFilter setFilter)
{
    for (auto _ : state) {
        setFilter(QStringLiteral("drawing 9"));
        ShownQml::settle();
        state.PauseTiming();
        setFilter(QString());
        ShownQml::settle();
        state.ResumeTiming();
    }
}

void filterShownWithOurs(benchmark::State& state, int count)
{
    ShownQml qml("SingleSelListView { objectName: 'list'; anchors.fill: parent }");
    qwxListCtrl list("list", qml.host());
    list.reset(wxFirstCells(count));
    ShownQml::settle();
    typeFilter(state, [&list](const QString& text) { list.setSearchString(qut::wxFromQt(text)); });
}

void filterShownWithQt(benchmark::State& state, int count)
{
    ShownQml qml("ListView { objectName: 'list'; anchors.fill: parent; delegate: Text { text: display } }");
    QStandardItemModel rows;
    for (const auto& texts : qtCells(count))
        rows.appendRow(new QStandardItem(texts[0]));
    QSortFilterProxyModel shown;
    shown.setSourceModel(&rows);
    qml.item("list")->setProperty("model", QVariant::fromValue<QObject*>(&shown));
    ShownQml::settle();
    typeFilter(state, [&shown](const QString& text) {
        shown.setFilterRegularExpression(QRegularExpression(text, QRegularExpression::CaseInsensitiveOption));
    });
}

} // namespace

void registerBenchmarks()
{
    for (int count : {1000, 10000, 100000}) {
        const std::string rows = "/" + std::to_string(count);
        registerPair("fill" + rows, fillWithOurs, fillWithQt, count);
        registerPair("reset" + rows, resetWithOurs, resetWithQt, count);
        registerPair("find" + rows, findWithOurs, findWithQt, count);
        registerPair("removeFront" + rows, removeFrontWithOurs, removeFrontWithQt, count);
        registerPair("filterShown" + rows, filterShownWithOurs, filterShownWithQt, count);
    }
}

} // namespace dbr::bench
