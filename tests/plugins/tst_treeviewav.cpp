#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>
#include <QJSValue>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTest>

#include <algorithm>

#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/qmlfixture.h"

using namespace dbr::test;

namespace {

// Roles as the wrapper's tree model names them, from Qt::UserRole on.
const QByteArrayList roleNames{"display", "textColor", "textBold", "image",           "icon",
                               "toolTip", "dragValid", "canEdit",  "rightButtonIcon", "editOnCreation"};
enum Role { Text = Qt::UserRole, ToolTip = Qt::UserRole + 5, DragValid, CanEdit, EditOnCreation = Qt::UserRole + 9 };
constexpr int WantsToBeExpanded = Qt::UserRole + 256;

QStringList texts(const QModelIndexList& indexes)
{
    QStringList result;
    for (const QModelIndex& index : indexes)
        result.append(index.data(Text).toString());
    result.sort();
    return result;
}

bool showsText(QQuickItem* item, const QString& text)
{
    const auto children = item->childItems();
    return item->isVisible() && ((item->inherits("QQuickText") && item->property("text") == text) ||
                                 std::any_of(children.begin(), children.end(),
                                             [&text](QQuickItem* child) { return showsText(child, text); }));
}

} // namespace

class tst_TreeViewAV : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    // What an application does on hoveredNode: it sets the tooltip there and then.
    void answerToolTip(const QVariant& index) { m_model->setData(index.toModelIndex(), "tip", ToolTip); }

private Q_SLOTS:
    void init();
    void cleanup();
    void clicks_selectRows_data();
    void clicks_selectRows();
    void expansion_followsCallsAndIndicator();
    void wantsToBeExpanded_expandsRowsAsTheyAppear();
    void labelEditing_data();
    void labelEditing();
    void drag_dropsRowsAroundOrOntoARow_data();
    void drag_dropsRowsAroundOrOntoARow();
    void hover_asksForTheToolTipBeforeShowingIt();

private:
    QStandardItem* node(const QString& text, QStandardItem* parent = nullptr, bool wantsToBeExpanded = false)
    {
        auto* item = new QStandardItem;
        item->setData(wantsToBeExpanded, WantsToBeExpanded);
        item->setData(text, Text);
        item->setData(text != "b", CanEdit);
        item->setData(text != "c", DragValid);
        (parent ? parent : m_source->invisibleRootItem())->appendRow(item);
        return m_items[text] = item;
    }

    QModelIndex qmlIndex(const QString& text)
    {
        QModelIndex index;
        QMetaObject::invokeMethod(m_model, "mapFromSource", Q_RETURN_ARG(QModelIndex, index),
                                  Q_ARG(QModelIndex, m_proxy->mapFromSource(m_items.value(text)->index())));
        return index;
    }

    // Calls a function of the component as the wrapper does.
    QVariant call(const char* method, const QVariant& index, const QVariant& expand = {})
    {
        QVariant result;
        const auto returned = Q_RETURN_ARG(QVariant, result);
        const bool called =
            expand.isValid()
                ? QMetaObject::invokeMethod(m_tree, method, returned, Q_ARG(QVariant, index), Q_ARG(QVariant, expand))
                : QMetaObject::invokeMethod(m_tree, method, returned, Q_ARG(QVariant, index));
        return called ? result : QVariant("not called");
    }

    QObject* view() const { return m_tree->property("view").value<QObject*>(); }

    QQuickItem* rowItem(const QString& text)
    {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(view(), "forceLayout");
        QMetaObject::invokeMethod(view(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                                  Q_ARG(int, m_rows->mapFromSource(qmlIndex(text)).row()));
        return item;
    }

    QPoint rowPoint(const QString& text, qreal fraction = 0.5, qreal x = 100)
    {
        QQuickItem* item = rowItem(text);
        return item ? item->mapToScene(QPointF(x, item->height() * fraction)).toPoint() : QPoint(-1, -1);
    }

    void click(const QString& text, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(m_window, Qt::LeftButton, modifiers, rowPoint(text));
    }

    std::unique_ptr<LogRecorder> m_log;
    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<QStandardItemModel> m_source;
    std::unique_ptr<QSortFilterProxyModel> m_proxy;
    std::unique_ptr<ItemWindow> m_shown;
    QObject* m_tree = nullptr;
    QAbstractItemModel* m_model = nullptr;
    QAbstractProxyModel* m_rows = nullptr;
    QQuickWindow* m_window = nullptr;
    QHash<QString, QStandardItem*> m_items;
};

void tst_TreeViewAV::init()
{
    m_log = std::make_unique<LogRecorder>();
    m_qml = std::make_unique<QmlFixture>();
    m_tree = m_qml->loadData("import Arvela.Components 1.0\nTreeViewAV { width: 300; height: 400 }");
    QVERIFY(m_tree);
    QCOMPARE(m_tree->property("qmlType").toString(), QStringLiteral("TreeViewAV"));
    m_model = qobject_cast<QAbstractItemModel*>(m_tree->property("model").value<QObject*>());
    QVERIFY(m_model);
    new QAbstractItemModelTester(m_model, QAbstractItemModelTester::FailureReportingMode::QtTest, m_model);
    m_rows = qobject_cast<QAbstractProxyModel*>(m_model->property("visibleRows").value<QAbstractItemModel*>());

    m_source = std::make_unique<QStandardItemModel>();
    m_items.clear();
    QHash<int, QByteArray> names;
    for (int role = 0; role < roleNames.size(); ++role)
        names.insert(Qt::UserRole + role, roleNames[role]);
    m_source->setItemRoleNames(names);
    QStandardItem* a = node("a");
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    for (const auto& [role, value] :
         std::initializer_list<std::pair<int, QVariant>>{{1, QColor(Qt::red)}, {2, true}, {3, image}})
        a->setData(value, Qt::UserRole + role);
    node("a0", a);
    node("a1", a);
    node("b00", node("b0", node("b")));
    node("c");
    m_shown = std::make_unique<ItemWindow>(m_tree);
    m_window = qobject_cast<QQuickItem*>(m_tree)->window();
    m_proxy = std::make_unique<QSortFilterProxyModel>();
    m_proxy->setSourceModel(m_source.get());
    QVERIFY(m_model->setProperty("sourceModel", QVariant::fromValue<QObject*>(m_proxy.get())));
    for (const QString& text : m_items.keys()) {
        QModelIndex source;
        QMetaObject::invokeMethod(m_model, "mapToSource", Q_RETURN_ARG(QModelIndex, source),
                                  Q_ARG(QModelIndex, qmlIndex(text)));
        QCOMPARE(source, m_proxy->mapFromSource(m_items[text]->index()));
    }
}

void tst_TreeViewAV::cleanup()
{
    m_shown.reset();
    m_qml.reset();
    // A failing binding or handler of the component only logs.
    const QStringList qmlErrors = m_log->lines().filter(".qml:");
    m_log.reset();
    QVERIFY2(qmlErrors.isEmpty(), qPrintable(qmlErrors.join('\n')));
}

void tst_TreeViewAV::clicks_selectRows_data()
{
    QTest::addColumn<int>("selectionMode");
    QTest::addColumn<QStringList>("clicks"); // "^" for a ctrl-click
    QTest::addColumn<QStringList>("selected");
    QTest::newRow("click") << 0 << QStringList{"a", "a0"} << QStringList{"a0"};
    QTest::newRow("ctrl-click, single selection") << 0 << QStringList{"a", "^c"} << QStringList{"c"};
    QTest::newRow("ctrl-click adds") << 1 << QStringList{"a", "^c", "^a0"} << QStringList{"a", "a0", "c"};
    QTest::newRow("ctrl-click takes out") << 1 << QStringList{"a", "^c", "^a"} << QStringList{"c"};
    QTest::newRow("click after ctrl-clicks") << 1 << QStringList{"a", "^c", "b"} << QStringList{"b"};
}

void tst_TreeViewAV::clicks_selectRows()
{
    QFETCH(int, selectionMode);
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, selected);

    view()->setProperty("selectionMode", selectionMode);
    call("doExpand", qmlIndex("a"), true);
    QSignalSpy currentChanged(m_tree, SIGNAL(currentChanged(QVariant, QVariant)));
    QSignalSpy selectionChanged(m_model, SIGNAL(selectedSourceRowsChanged()));
    QVERIFY(currentChanged.isValid() && selectionChanged.isValid());
    QString previous;
    for (const QString& clicked : clicks) {
        const QString text = clicked.startsWith('^') ? clicked.mid(1) : clicked;
        click(text, clicked.startsWith('^') ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(currentChanged.size(), 1);
        QCOMPARE(currentChanged.first().at(0).toModelIndex().data(Text).toString(), previous);
        QCOMPARE(currentChanged.takeFirst().at(1).toModelIndex(), qmlIndex(text));
        previous = text;
    }
    for (int shifted = 0; shifted < 2; ++shifted) {
        QVERIFY(!selectionChanged.isEmpty());
        const auto rows = m_model->property("selectedSourceRows").value<QModelIndexList>();
        QVERIFY(std::all_of(rows.begin(), rows.end(), [this](auto& row) { return row.model() == m_proxy.get(); }));
        QCOMPARE(texts(rows), selected);
        // The source rows of the selection move with the rows around them.
        selectionChanged.clear();
        m_source->insertRow(0, new QStandardItem);
        m_items["a"]->insertRow(0, new QStandardItem);
    }
}

void tst_TreeViewAV::expansion_followsCallsAndIndicator()
{
    const QModelIndex a = qmlIndex("a");
    QCOMPARE(call("getExpanded", a), QVariant(false));
    call("doExpand", a, true);
    QCOMPARE(call("getExpanded", a), QVariant(true));
    QCOMPARE(m_rows->rowCount(), 5);
    // A collapse answers at once; its rows go at the end of the turn of the event loop.
    call("doToggle", a);
    QCOMPARE(call("getExpanded", a), QVariant(false));
    QTRY_COMPARE(m_rows->rowCount(), 3);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, rowPoint("a", 0.5, 8));
    QCOMPARE(call("getExpanded", a), QVariant(true));

    // Collapses made together, of shown and hidden nodes, children first as a CollapseAll makes them.
    call("doExpand", qmlIndex("b"), true);
    call("doExpand", qmlIndex("b0"), true);
    QCOMPARE(m_rows->rowCount(), 7);
    for (const char* text : {"b0", "b", "a"})
        call("doCollapse", qmlIndex(text));
    QTRY_COMPARE(m_rows->rowCount(), 3);
    call("doExpand", qmlIndex("b"), true);
    QCOMPARE(m_rows->rowCount(), 4);
    QCOMPARE(call("getExpanded", qmlIndex("b0")), QVariant(false));

    // A node expanded below a collapsed one shows expanded when its parent is.
    call("doCollapse", qmlIndex("b"));
    call("doExpand", qmlIndex("b0"), true);
    QTRY_COMPARE(m_rows->rowCount(), 3);
    call("doToggle", qmlIndex("b"));
    QCOMPARE(m_rows->rowCount(), 5);
    QVERIFY(rowItem("b00"));

    // What is no index of the model is ignored.
    for (const QVariant& index : {QVariant(), QVariant::fromValue(QModelIndex()), QVariant(m_proxy->index(0, 0))}) {
        for (const char* method : {"doCollapse", "doToggle", "editLabel"})
            QCOMPARE(call(method, index), QVariant());
        QCOMPARE(call("doExpand", index, true), QVariant());
        QCOMPARE(call("getExpanded", index), QVariant(false));
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_rows->rowCount(), 5);
}

void tst_TreeViewAV::wantsToBeExpanded_expandsRowsAsTheyAppear()
{
    QCOMPARE(m_model->roleNames().value(WantsToBeExpanded), QByteArray("wantsToBeExpanded"));
    // Rows there when the model is set (detached while shown first), and rows inserted into a shown
    // node and into a collapsed one.
    m_items["b"]->setData(true, WantsToBeExpanded);
    m_items["b0"]->setData(true, WantsToBeExpanded);
    click("a");
    QVERIFY(m_model->setProperty("sourceModel", QVariant::fromValue<QObject*>(nullptr)));
    QCOMPARE(m_rows->rowCount(), 0);
    QVERIFY(m_model->property("selectedSourceRows").value<QModelIndexList>().isEmpty());
    QVERIFY(m_model->setProperty("sourceModel", QVariant::fromValue<QObject*>(m_proxy.get())));
    for (const QString& parent : QStringList{"b0", "c"})
        node(parent + "++", node(parent + "+", m_items[parent], true));
    // A tree marks a row to expand after announcing it: the view looks at the end of the turn.
    for (const QString& text : QStringList{"b", "b0", "b0+", "c+"})
        QTRY_VERIFY2(call("getExpanded", qmlIndex(text)) == true, qPrintable(text));
    QVERIFY(rowItem("b0++"));
    QVERIFY(!rowItem("c+"));
}

void tst_TreeViewAV::labelEditing_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<bool>("byKey"); // F2 on the current row, else editLabel
    QTest::addColumn<int>("endKey");
    QTest::newRow("editLabel, Enter") << "a" << false << int(Qt::Key_Return);
    QTest::newRow("F2, Enter") << "c" << true << int(Qt::Key_Enter);
    QTest::newRow("editLabel, Escape") << "a" << false << int(Qt::Key_Escape);
    QTest::newRow("editLabel where canEdit is false") << "b" << false << int(Qt::Key_Return);
    QTest::newRow("F2 where canEdit is false") << "b" << true << int(Qt::Key_Return);
}

void tst_TreeViewAV::labelEditing()
{
    QFETCH(QString, row);
    QFETCH(bool, byKey);
    QFETCH(int, endKey);
    const bool committed = row != "b" && endKey != Qt::Key_Escape;

    QSignalSpy endLabelEdit(m_tree, SIGNAL(endLabelEdit(QVariant, QString)));
    QVERIFY(endLabelEdit.isValid());
    if (byKey) {
        click(row);
        QTest::keyClick(m_window, Qt::Key_F2);
    } else {
        call("editLabel", qmlIndex(row));
    }
    for (char key : {'n', 'e', 'w'})
        QTest::keyClick(m_window, key);
    QTest::keyClick(m_window, Qt::Key(endKey));
    QCOMPARE(endLabelEdit.size(), committed ? 1 : 0);
    if (committed) {
        QCOMPARE(endLabelEdit.first().at(0).toModelIndex(), qmlIndex(row));
        QCOMPARE(endLabelEdit.first().at(1).toString(), QStringLiteral("new"));
    }
    QVERIFY(!m_window->activeFocusItem()->inherits("QQuickTextInput"));

    // A row that appears asking for it is edited at once, and asks no more.
    node("added", m_items["c"])->setData(true, EditOnCreation);
    call("doExpand", qmlIndex("c"), true);
    QTRY_VERIFY(m_window->activeFocusItem()->inherits("QQuickTextInput"));
    QCOMPARE(m_items["added"]->data(EditOnCreation), QVariant(false));
}

void tst_TreeViewAV::drag_dropsRowsAroundOrOntoARow_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<qreal>("fraction"); // of the height of the target row "b"
    QTest::addColumn<QStringList>("dragged");
    QTest::addColumn<int>("dropType");
    QTest::newRow("onto") << QStringList() << "a" << 0.5 << QStringList{"a"} << 1;
    QTest::newRow("above") << QStringList() << "a" << 0.1 << QStringList{"a"} << 0;
    QTest::newRow("below") << QStringList() << "a" << 0.9 << QStringList{"a"} << 2;
    QTest::newRow("selected: with the selection")
        << QStringList{"a0", "a"} << "a" << 0.5 << QStringList{"a", "a0"} << 1;
    QTest::newRow("unselected: alone") << QStringList{"a0", "c"} << "a" << 0.5 << QStringList{"a"} << 1;
    QTest::newRow("not dragValid") << QStringList() << "c" << 0.5 << QStringList() << -1;
}

void tst_TreeViewAV::drag_dropsRowsAroundOrOntoARow()
{
    QFETCH(QStringList, selected);
    QFETCH(QString, pressed);
    QFETCH(qreal, fraction);
    QFETCH(QStringList, dragged);
    QFETCH(int, dropType);

    view()->setProperty("selectionMode", 1);
    call("doExpand", qmlIndex("a"), true);
    for (const QString& text : selected)
        click(text, Qt::ControlModifier);
    QSignalSpy beginDrag(m_tree, SIGNAL(beginDrag(QVariant, int)));
    QSignalSpy endDrag(m_tree, SIGNAL(endDrag(QVariant, QVariant, int, QVariant)));
    QVERIFY(beginDrag.isValid() && endDrag.isValid());
    const QPoint from = rowPoint(pressed);
    const QPoint to = rowPoint("b", fraction);
    QTest::mousePress(m_window, Qt::LeftButton, Qt::ShiftModifier, from);
    for (int step = 1; step <= 4; ++step)
        QTest::mouseEvent(QTest::MouseMove, m_window, Qt::NoButton, Qt::ShiftModifier, from + (to - from) * step / 4);
    QTest::mouseRelease(m_window, Qt::LeftButton, Qt::ShiftModifier, to);
    QCOMPARE(beginDrag.size(), dragged.isEmpty() ? 0 : 1);
    QCOMPARE(endDrag.size(), beginDrag.size());
    if (dragged.isEmpty())
        return;
    // The wrapper receives the dragged indexes as a JS array in a QJSValue.
    for (const QVariant& list : {beginDrag.first().at(0), endDrag.first().at(0)}) {
        QCOMPARE(list.userType(), qMetaTypeId<QJSValue>());
        QModelIndexList indexes;
        for (const QVariant& index : list.value<QJSValue>().toVariant().toList())
            indexes.append(index.toModelIndex());
        QVERIFY(std::all_of(indexes.begin(), indexes.end(), [this](auto& index) { return index.model() == m_model; }));
        QCOMPARE(texts(indexes), dragged);
    }
    QCOMPARE(beginDrag.first().at(1).toInt(), int(Qt::ShiftModifier));
    QCOMPARE(endDrag.first().at(1).toModelIndex(), qmlIndex("b"));
    QCOMPARE(endDrag.first().at(2).toInt(), int(Qt::ShiftModifier));
    QCOMPARE(endDrag.first().at(3).toInt(), dropType);
}

void tst_TreeViewAV::hover_asksForTheToolTipBeforeShowingIt()
{
    QSignalSpy hoveredNode(m_tree, SIGNAL(hoveredNode(QVariant)));
    QVERIFY(hoveredNode.isValid());
    connect(m_tree, SIGNAL(hoveredNode(QVariant)), this, SLOT(answerToolTip(QVariant)));
    QTest::mouseMove(m_window, rowPoint("c"));
    QTRY_COMPARE(hoveredNode.size(), 1);
    QCOMPARE(hoveredNode.first().at(0).toModelIndex(), qmlIndex("c"));
    QTRY_VERIFY(showsText(m_window->contentItem(), QStringLiteral("tip")));
}

QTEST_MAIN(tst_TreeViewAV)
#include "tst_treeviewav.moc"
