// The tree control over the kit's real TreeViewAV, driven with mouse and key events.
#include <support/itemwindow.h>
#include <support/qmlfixture.h>
#include <support/testhost.h>
#include <support/treerows.h>

#include <dlgbridge/views/qwxtreectrl.h>
#include <dlgbridge/views/qwxtreeevent.h>

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QQuickItem>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>
#include <QTest>

#include <qut/qtconversions.h>

#include <map>

using namespace dbr;
using namespace dbr::test;

namespace {

constexpr int displayRole = 256;
// Longer than the view waits before it asks for a tool tip.
constexpr int hoverMs = 800;

// Sorts by the text and hides the rows whose text holds a given string.
class LayerProxy : public QSortFilterProxyModel
{
public:
    LayerProxy()
    {
        setSortRole(displayRole);
        setFilterRole(displayRole);
        setRecursiveFilteringEnabled(true);
    }
};

void attachTester(QAbstractItemModel* model)
{
    new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::QtTest, model);
}

} // namespace

class tst_TreeView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void viewCalls_reachTheView();
    void selection_namesNodesWhateverTheProxyDoes();
    void userActions_reachTheHandlersAsIds();
    void randomEdits_keepTheThreeModelsValid();

private:
    qwxTreeCtrl& tree() const { return *dynamic_cast<qwxTreeCtrl*>(m_host->list().FindWindow("layers")); }
    QObject* item() const { return m_host->root()->findChild<QObject*>(QStringLiteral("layers")); }
    QObject* view() const { return item()->property("view").value<QObject*>(); }
    int shownRows() const { return view()->property("count").toInt(); }
    // Builds rows from "a(b,c),d" and keeps their ids by text.
    void build(const QString& rows);
    qwxTreeItemId id(const char* text) const { return m_ids.at(QString::fromLatin1(text)); }
    // The view's row that shows text.
    QQuickItem* row(const QString& text) const;
    QPoint pointOf(const QString& text, qreal fraction = 0.5) const;
    // Rows as paths of row numbers, "0/2/1", as the view lists them and as they should be.
    static QStringList shownRowsOf(const QAbstractProxyModel& shown);
    QStringList expectedRows(const QAbstractItemModel& model, const QModelIndex& parent) const;
    static QString pathOf(QModelIndex index);

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<ItemWindow> m_window;
    std::map<QString, qwxTreeItemId> m_ids;
};

void tst_TreeView::init()
{
    m_qml = std::make_unique<QmlFixture>();
    m_host = std::make_unique<TestHost>(m_qml->loadFile(QStringLiteral("tree.qml")));
    m_host->doLoadContent(m_host->list());
    m_window = std::make_unique<ItemWindow>(m_host->root());
    attachTester(tree().GetModel());
    attachTester(item()->property("model").value<QAbstractItemModel*>());
    m_ids.clear();
}

void tst_TreeView::cleanup()
{
    m_window.reset();
    m_host.reset();
    m_qml.reset();
}

void tst_TreeView::build(const QString& rows)
{
    appendTreeRows(tree(), rows, m_ids);
    // The view takes new rows in at the end of the turn of the event loop.
    QCoreApplication::processEvents();
}

QQuickItem* tst_TreeView::row(const QString& text) const
{
    QMetaObject::invokeMethod(view(), "forceLayout");
    const auto rows = view()->property("contentItem").value<QQuickItem*>()->childItems();
    for (QQuickItem* candidate : rows) {
        for (QQuickItem* label : candidate->findChildren<QQuickItem*>()) {
            if (label->inherits("QQuickText") && label->isVisible() && label->property("text").toString() == text)
                return candidate;
        }
    }
    return nullptr;
}

QPoint tst_TreeView::pointOf(const QString& text, qreal fraction) const
{
    QQuickItem* found = row(text);
    return found ? found->mapToScene(QPointF(120, found->height() * fraction)).toPoint() : QPoint(-1, -1);
}

void tst_TreeView::viewCalls_reachTheView()
{
    build("a(a1(a11),a2),b(b1),c");
    QCOMPARE(shownRows(), 3);
    tree().ExpandAll(tree().GetRootItem());
    QCOMPARE(shownRows(), 7);
    QVERIFY(tree().IsExpanded(id("a1")) && tree().IsExpanded(id("b")));
    QVERIFY(!tree().IsExpanded(id("c")));

    tree().CollapseAll(id("a"));
    QVERIFY(!tree().IsExpanded(id("a")) && !tree().IsExpanded(id("a1")));
    QTRY_COMPARE(shownRows(), 4);
    tree().Toggle(id("a"));
    QCOMPARE(shownRows(), 6);
    tree().Collapse(id("b"));
    QTRY_COMPARE(shownRows(), 5);

    // Selecting a row deep down opens the way to it.
    tree().CollapseAll(tree().GetRootItem());
    QTRY_COMPARE(shownRows(), 3);
    tree().SelectItem(id("a11"), true);
    QVERIFY(tree().IsExpanded(id("a")) && tree().IsExpanded(id("a1")));
    QCOMPARE(tree().GetFocusedItem(), id("a11"));
    QVERIFY(selectInTree(&tree(), "B|B1"));
    QCOMPARE(tree().GetFocusedItem(), id("b1"));
    QVERIFY(tree().IsExpanded(id("b")));
}

void tst_TreeView::selection_namesNodesWhateverTheProxyDoes()
{
    build("delta(d1),alpha(a1),charlie");
    auto proxy = std::make_unique<LayerProxy>();
    LayerProxy& layers = *proxy;
    tree().setProxyModel(std::move(proxy));
    attachTester(&layers);
    view()->setProperty("selectionMode", 1);
    tree().ExpandAll(tree().GetRootItem());
    // A move is a removal and an insertion, which a selection doesn't survive.
    tree().MoveItem(id("d1"), id("alpha"));
    tree().SelectItem(id("d1"));
    tree().SelectItem(id("charlie"));

    tree().setIsSorted();
    // Hides a1 only; a selected row that a filter hides leaves the selection.
    layers.setFilterRegularExpression(QStringLiteral("^(?!a1$)"));
    std::vector<qwxTreeItemId> selected;
    QCOMPARE(tree().GetSelections(selected), 2);
    QVERIFY(tree().IsSelected(id("d1")) && tree().IsSelected(id("charlie")));
    QVERIFY(!tree().GetFocusedItem().IsOk());
    QCOMPARE(tree().GetItemParent(id("d1")), id("alpha"));

    tree().clearSelections();
    QCOMPARE(tree().GetSelections(selected), 0);
}

void tst_TreeView::userActions_reachTheHandlersAsIds()
{
    build("a(a1),b,c");
    QStringList heard;
    const auto text = [this](const qwxTreeItemId& item) { return qut::toQt(tree().GetItemText(item)); };
    QmlChildList& list = m_host->list();
    list.connectToTreeSelChangedEvent("layers", [&](qwxTreeEvent& event) {
        heard << QStringLiteral("selected %1 after %2").arg(text(event.GetItem()), text(event.GetOldItem()));
    });
    list.connectToLeftDoubleClick("layers", [&](qwxTreeEvent& event) { heard << "double " + text(event.GetItem()); });
    list.connectToTreeItemGetToolTip("layers", [&](qwxTreeEvent& event) {
        heard << "tip " + text(event.GetItem());
        event.SetToolTip("about " + event.GetLabel());
    });
    list.connectToBeginLabelEdit("layers", [&](qwxTreeEvent& event) {
        if (text(event.GetItem()) == QLatin1String("b"))
            event.Veto();
    });
    list.connectToEndLabelEdit("layers", [&](qwxTreeEvent& event) {
        heard << QStringLiteral("renamed %1 to %2").arg(text(event.GetItem()), qut::toQt(event.GetLabel()));
    });
    list.connectToBeginDrag("layers",
                            [&](qwxDragDropEvent& event) { heard << "drag " + text(event.GetSources().at(0)); });
    list.connectToEndDrag("layers", [&](qwxDragDropEvent& event) {
        heard << QStringLiteral("drop %1 on %2 as %3")
                     .arg(text(event.GetSources().at(0)), text(event.GetTarget()))
                     .arg(event.GetDropType());
    });
    QQuickWindow* window = qobject_cast<QQuickItem*>(item())->window();

    QTest::mouseClick(window, Qt::LeftButton, {}, pointOf("a"));
    QTest::mouseClick(window, Qt::LeftButton, {}, pointOf("b"));
    QTest::keyClick(window, Qt::Key_F2);
    QTest::mouseDClick(window, Qt::LeftButton, {}, pointOf("c"));
    QTest::keyClick(window, Qt::Key_F2);
    QTest::keyClick(window, Qt::Key_C);
    QTest::keyClick(window, Qt::Key_C);
    QTest::keyClick(window, Qt::Key_Return);

    QTest::mouseMove(window, pointOf("a"));
    QTRY_VERIFY_WITH_TIMEOUT(heard.contains("tip a"), hoverMs * 2);
    QCOMPARE(tree().GetModel()->index(0, 0).data(262).toString(), QStringLiteral("about a"));

    const QPoint from = pointOf("c");
    const QPoint onto = pointOf("a");
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step)
        QTest::mouseMove(window, from + (onto - from) * step / 4);
    QTest::mouseRelease(window, Qt::LeftButton, {}, onto);

    QCOMPARE(heard.join(" | "), (QStringList{"selected a after ", "selected b after a", "selected c after b",
                                             "double c", "renamed c to cc", "tip a", "drag c", "drop c on a as 1"}
                                     .join(" | ")));
}

void tst_TreeView::randomEdits_keepTheThreeModelsValid()
{
    auto proxy = std::make_unique<LayerProxy>();
    LayerProxy& layers = *proxy;
    tree().setProxyModel(std::move(proxy));
    attachTester(&layers);
    auto* shown = item()->property("model").value<QObject*>()->property("visibleRows").value<QAbstractProxyModel*>();
    attachTester(shown);
    // A fixed seed: a failure replays.
    QRandomGenerator random(20261124);
    std::vector<qwxTreeItemId> nodes{tree().GetRootItem()};
    const auto any = [&] { return nodes[random.bounded(int(nodes.size()))]; };
    for (int step = 0; step < 400; ++step) {
        const QString text = QString::number(random.bounded(100));
        switch (random.bounded(8)) {
        case 0:
        case 1: nodes.push_back(tree().AppendItem(any(), qut::wxFromQt(text))); break;
        case 2: {
            const qwxTreeItemId parent = any();
            // Out of range now and then: refused without a trace in the proxies.
            const int position = random.bounded(3);
            if (const qwxTreeItemId added = tree().InsertItem(parent, position, qut::wxFromQt(text)); added.IsOk())
                nodes.push_back(added);
            break;
        }
        case 3: tree().MoveItem(any(), any()); break;
        case 4: tree().SetItemText(any(), qut::wxFromQt(text)); break;
        case 5: tree().setIsSorted(); break;
        case 6: layers.setFilterFixedString(random.bounded(2) ? QString::number(random.bounded(10)) : QString()); break;
        case 7: tree().ExpandAll(any()); break;
        }
        // Deleted nodes leave the list: ids of dead nodes are not valid input.
        if (step % 50 == 49) {
            tree().DeleteAllItems();
            nodes.assign(1, tree().GetRootItem());
        }
        // Once the turn is over the view shows exactly the rows of expanded parents, in tree order.
        QCoreApplication::processEvents();
        QCOMPARE(shownRowsOf(*shown), expectedRows(*shown->sourceModel(), {}));
    }
}

QStringList tst_TreeView::shownRowsOf(const QAbstractProxyModel& shown)
{
    QStringList rows;
    for (int row = 0; row < shown.rowCount(); ++row)
        rows << pathOf(shown.mapToSource(shown.index(row, 0)));
    return rows;
}

QStringList tst_TreeView::expectedRows(const QAbstractItemModel& model, const QModelIndex& parent) const
{
    QStringList rows;
    QObject* viewModel = item()->property("model").value<QObject*>();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex child = model.index(row, 0, parent);
        rows << pathOf(child);
        bool expanded = false;
        QMetaObject::invokeMethod(viewModel, "isExpanded", Q_RETURN_ARG(bool, expanded), Q_ARG(QModelIndex, child));
        if (expanded)
            rows << expectedRows(model, child);
    }
    return rows;
}

QString tst_TreeView::pathOf(QModelIndex index)
{
    QStringList rows;
    for (; index.isValid(); index = index.parent())
        rows.prepend(QString::number(index.row()));
    return rows.join(QLatin1Char('/'));
}

QTEST_MAIN(tst_TreeView)
#include "tst_treeview.moc"
