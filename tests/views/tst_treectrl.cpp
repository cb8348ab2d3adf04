#include <support/logrecorder.h>
#include <support/qmlfixture.h>
#include <support/testhost.h>
#include <support/treerows.h>

#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/views/qwxtreectrl.h>
#include <dlgbridge/views/qwxtreeevent.h>

#include <QAbstractItemModelTester>
#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>

#include <wx/bitmap.h>
#include <wx/image.h>

#include <qut/qtconversions.h>

#include <map>

using namespace dbr;
using namespace dbr::test;

namespace {

constexpr int displayRole = 256;

// Client data that counts its own destruction.
struct CountedData : qwxTreeItemData
{
    explicit CountedData(int& destroyed)
        : m_destroyed(destroyed)
    {}
    ~CountedData() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

// Hides the rows whose text is in hidden.
class HidingProxy : public QSortFilterProxyModel
{
public:
    QStringList hidden;

    void hide(const QString& text)
    {
        hidden << text;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        return !hidden.contains(sourceModel()->index(row, 0, parent).data(displayRole).toString());
    }
};

// The rows as the proxy shows them: "a(b,c),d".
QString dump(const qwxTreeCtrl& tree, const qwxTreeItemId& parent)
{
    QStringList rows;
    qwxTreeItemIdValue cookie;
    for (qwxTreeItemId child = tree.GetFirstChild(parent, cookie); child.IsOk();
         child = tree.GetNextChild(child, cookie)) {
        const QString below = dump(tree, child);
        rows << qut::toQt(tree.GetItemText(child)) + (below.isEmpty() ? QString() : QStringLiteral("(%1)").arg(below));
    }
    return rows.join(QLatin1Char(','));
}

QString dump(const qwxTreeCtrl& tree)
{
    return dump(tree, tree.GetRootItem());
}

using SetAttribute = std::function<void(qwxTreeCtrl&, const qwxTreeItemId&)>;

} // namespace

Q_DECLARE_METATYPE(SetAttribute)

class tst_TreeCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = std::make_unique<TestHost>();
        m_tree = std::make_unique<qwxTreeCtrl>("tree", *m_host);
        new QAbstractItemModelTester(m_tree->GetModel(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     m_tree->GetModel());
        m_ids.clear();
    }
    void cleanup()
    {
        m_tree.reset();
        m_host.reset();
    }

    void items_areAddedUnderTheHiddenRoot();
    void ids_nameTheirNodeThroughSortFilterAndMove();
    void attributeSetters_reportRealChangesOnly_data();
    void attributeSetters_reportRealChangesOnly();
    void roles_showTheRow();
    void canEdit_asksTheBeginLabelEditHandler_data();
    void canEdit_asksTheBeginLabelEditHandler();
    void refusedRows_deleteTheirData();
    void events_readTheirTree();
    void selectInTree_findsThePathBelowEachPart_data();
    void selectInTree_findsThePathBelowEachPart();
    void withoutAProperQmlModel_warnsAndAnswersEmpty_data();
    void withoutAProperQmlModel_warnsAndAnswersEmpty();

private:
    void build(const QString& rows) { appendTreeRows(*m_tree, rows, m_ids); }
    qwxTreeItemId id(const char* text) const { return m_ids.at(QString::fromLatin1(text)); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<qwxTreeCtrl> m_tree;
    std::map<QString, qwxTreeItemId> m_ids;
};

void tst_TreeCtrl::items_areAddedUnderTheHiddenRoot()
{
    const qwxTreeItemId root = m_tree->AddRoot("Layers");
    QCOMPARE(root, m_tree->GetRootItem());
    QCOMPARE(m_tree->GetModel()->rowCount(), 0);
    QCOMPARE(m_tree->GetItemText(root), wxString());

    const qwxTreeItemId b = m_tree->AppendItem(root, "b");
    const qwxTreeItemId a = m_tree->InsertItem(root, 0, "a");
    const qwxTreeItemId c = m_tree->InsertItem(root, -1, "c");
    m_tree->AppendItem(a, "a1");
    QCOMPARE(dump(*m_tree), QStringLiteral("a(a1),b,c"));
    QCOMPARE(m_tree->GetCount(), 3);
    QVERIFY(!m_tree->GetItemParent(a).IsOk());
    QCOMPARE(m_tree->GetNextSibling(a), b);
    QCOMPARE(m_tree->GetPrevSibling(c), b);
    QVERIFY(!m_tree->GetPrevSibling(a).IsOk());
    QVERIFY(m_tree->ItemHasChildren(a) && !m_tree->HasChildren(b));

    m_tree->SetItemText(root, "renamed");
    QCOMPARE(m_tree->GetItemText(root), wxString());
    m_tree->DeleteChildren(a);
    m_tree->Delete(b);
    QCOMPARE(dump(*m_tree), QStringLiteral("a,c"));
    m_tree->DeleteAllItems();
    QCOMPARE(m_tree->GetCount(), 0);
}

void tst_TreeCtrl::ids_nameTheirNodeThroughSortFilterAndMove()
{
    build("delta(d2,d1),Alpha,charlie(c1),bravo");
    auto hiding = std::make_unique<HidingProxy>();
    HidingProxy& proxy = *hiding;
    // A given proxy gets no setting from the control.
    proxy.setSortRole(displayRole);
    proxy.setSortCaseSensitivity(Qt::CaseInsensitive);
    m_tree->setProxyModel(std::move(hiding));
    new QAbstractItemModelTester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest, &proxy);

    m_tree->setIsSorted();
    QCOMPARE(dump(*m_tree), QStringLiteral("Alpha,bravo,charlie(c1),delta(d1,d2)"));
    proxy.hide(QStringLiteral("bravo"));
    QCOMPARE(dump(*m_tree), QStringLiteral("Alpha,charlie(c1),delta(d1,d2)"));
    QCOMPARE(m_tree->GetChildIndexInParent(id("bravo")), 3);
    QCOMPARE(m_tree->GetChildIndexInParent(id("d1")), 1);
    QCOMPARE(m_tree->MoveItem(id("d2"), id("charlie")), id("d2"));
    QCOMPARE(dump(*m_tree), QStringLiteral("Alpha,charlie(c1,d2),delta(d1)"));

    // Every id still names its node, whatever the proxy did to its row.
    for (const auto& [text, item] : m_ids)
        QCOMPARE(qut::toQt(m_tree->GetItemText(item)), text);
    QCOMPARE(m_tree->GetItemParent(id("d2")), id("charlie"));
    qwxTreeItemIdValue cookie;
    QVERIFY(!m_tree->GetFirstChild(id("bravo"), cookie).IsOk());
}

void tst_TreeCtrl::attributeSetters_reportRealChangesOnly_data()
{
    QTest::addColumn<SetAttribute>("set");
    QTest::addColumn<int>("role");
    using Set = SetAttribute;
    QTest::newRow("text") << Set([](auto& t, auto& i) { t.SetItemText(i, "new"); }) << 256;
    QTest::newRow("colour") << Set([](auto& t, auto& i) { t.SetItemTextColour(i, *wxRED); }) << 257;
    QTest::newRow("bold, told as colour") << Set([](auto& t, auto& i) { t.SetItemBold(i, true); }) << 257;
    QTest::newRow("image") << Set([](auto& t, auto& i) { t.SetItemImage(i, 2); }) << 259;
    QTest::newRow("icon") << Set([](auto& t, auto& i) { t.SetItemIcon(i, "qrc:/a.png"); }) << 261;
    QTest::newRow("tool tip") << Set([](auto& t, auto& i) { t.SetToolTip(i, "tip"); }) << 262;
    QTest::newRow("drag valid") << Set([](auto& t, auto& i) { t.SetDragValid(i, false); }) << 263;
    QTest::newRow("right button") << Set([](auto& t, auto& i) { t.SetItemRightButtonIcon(i, "x.png"); }) << 265;
    QTest::newRow("edit on creation") << Set([](auto& t, auto& i) { t.SetEditOnCreation(i, true); }) << 266;
}

void tst_TreeCtrl::attributeSetters_reportRealChangesOnly()
{
    QFETCH(SetAttribute, set);
    QFETCH(int, role);
    build("a(b)");
    QSignalSpy changed(m_tree->GetModel(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());

    set(*m_tree, id("b"));
    set(*m_tree, id("b"));
    set(*m_tree, m_tree->GetRootItem());
    set(*m_tree, qwxTreeItemId());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].toModelIndex().internalPointer(), id("b").data());
    QCOMPARE(changed[0][2].value<QVector<int>>(), QVector<int>{role});
}

void tst_TreeCtrl::roles_showTheRow()
{
    const qwxTreeItemId item = m_tree->AppendItem(m_tree->GetRootItem(), "row", 0, 1, nullptr, "icon.png");
    const QModelIndex index = m_tree->GetModel()->index(0, 0);
    QAbstractItemModel& model = *m_tree->GetModel();
    QCOMPARE(model.columnCount(index), 1);
    QCOMPARE(model.roleNames().value(264), QByteArray("canEdit"));
    QCOMPARE(index.data(256).toString(), QStringLiteral("row"));
    QCOMPARE(index.data(257).value<QColor>(), QColor(Qt::black));
    QCOMPARE(index.data(258).toBool(), false);
    QCOMPARE(index.data(260).toInt(), 0);
    QCOMPARE(index.data(261).toString(), QStringLiteral("icon.png"));
    QCOMPARE(index.data(263).toBool(), true);
    QVERIFY(!index.data(259).isValid());
    QVERIFY(!index.data(267).isValid());

    auto* images = new qwxImageList(4, 4);
    images->Add(wxBitmap(wxImage(4, 4)));
    m_tree->AssignImageList(images);
    QCOMPARE(m_tree->GetImageList().get(), images);
    QCOMPARE(index.data(259).value<QImage>().size(), QSize(4, 4));

    QVERIFY(!model.setData(index, QColor(Qt::red), 257));
    QVERIFY(model.setData(index, true, 266));
    QCOMPARE(index.data(266).toBool(), true);
    QCOMPARE(m_tree->GetItemIcon(item), QStringLiteral("icon.png"));
}

void tst_TreeCtrl::canEdit_asksTheBeginLabelEditHandler_data()
{
    QTest::addColumn<bool>("bound");
    QTest::addColumn<bool>("veto");
    QTest::addColumn<bool>("canEdit");
    QTest::newRow("no handler") << false << false << false;
    QTest::newRow("vetoed") << true << true << false;
    QTest::newRow("allowed") << true << false << true;
}

void tst_TreeCtrl::canEdit_asksTheBeginLabelEditHandler()
{
    QFETCH(bool, bound);
    QFETCH(bool, veto);
    QFETCH(bool, canEdit);
    build("a");
    qwxTreeItemId asked;
    if (bound) {
        m_tree->setBeginLabelEditCallback([&](qwxTreeEvent& event) {
            asked = event.GetItem();
            if (veto)
                event.Veto();
        });
    }
    QCOMPARE(m_tree->GetModel()->index(0, 0).data(264).toBool(), canEdit);
    QCOMPARE(asked, bound ? id("a") : qwxTreeItemId());
}

void tst_TreeCtrl::refusedRows_deleteTheirData()
{
    build("a");
    int destroyed = 0;
    QVERIFY(!m_tree->AppendItem(qwxTreeItemId(), "x", -1, -1, new CountedData(destroyed)).IsOk());
    QCOMPARE(destroyed, 1);
    QTest::ignoreMessage(QtDebugMsg, "Trying to insert item out of bounds");
    QVERIFY(!m_tree->InsertItem(id("a"), 5, "x", -1, -1, new CountedData(destroyed)).IsOk());
    QCOMPARE(destroyed, 2);

    auto* kept = new CountedData(destroyed);
    const qwxTreeItemId b = m_tree->AppendItem(id("a"), "b", -1, -1, kept);
    QCOMPARE(m_tree->GetItemData(b), kept);
    m_tree->Delete(id("a"));
    QCOMPARE(destroyed, 3);
}

void tst_TreeCtrl::events_readTheirTree()
{
    build("a,b");
    qwxTreeEvent plain(id("a"), m_tree.get());
    QCOMPARE(plain.GetOldItem(), plain.GetItem());
    QCOMPARE(plain.GetLabel(), wxString("a"));
    QCOMPARE(plain.GetEventObject(), m_tree.get());
    plain.SetToolTip("about a");
    QCOMPARE(m_tree->GetModel()->index(0, 0).data(262).toString(), QStringLiteral("about a"));
    QCOMPARE(qwxTreeEvent(id("a"), QStringLiteral("edited"), m_tree.get()).GetLabel(), wxString("edited"));
    QCOMPARE(qwxTreeEvent(id("a"), QStringLiteral("x"), nullptr).GetLabel(), wxString("x"));
    QCOMPARE(qwxTreeEvent(id("a"), nullptr).GetLabel(), wxString());

    qwxDragDropEvent begin({id("a"), qwxTreeItemId(), id("b")}, 0, m_tree.get());
    QVERIFY(!begin.GetTarget().IsOk());
    QCOMPARE(begin.GetDropType(), DropOnto);
    QSignalSpy changed(m_tree->GetModel(), &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());
    begin.SetDragValid(false);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(m_tree->GetModel()->index(1, 0).data(263).toBool(), false);
}

void tst_TreeCtrl::selectInTree_findsThePathBelowEachPart_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("found");
    QTest::newRow("empty") << "" << false;
    QTest::newRow("separators only") << "||" << false;
    QTest::newRow("two parts, any case, any depth") << "SITE|walls" << true;
    QTest::newRow("second part missing") << "site|roof" << false;
}

void tst_TreeCtrl::selectInTree_findsThePathBelowEachPart()
{
    QFETCH(QString, path);
    QFETCH(bool, found);
    build("site(ground(Walls),upper),other");
    // Without a view there is nothing to select in; the search still answers.
    LogRecorder quiet;
    QCOMPARE(selectInTree(m_tree.get(), qut::wxFromQt(path)), found);
    QVERIFY(!selectInTree(nullptr, "site"));
}

void tst_TreeCtrl::withoutAProperQmlModel_warnsAndAnswersEmpty_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no model") << QByteArray("Item { objectName: 'tree' }")
                              << "\"tree\" Unable to get source model. Are you using TreeViewAV with a "
                                 "SortFilterSelectModel?";
    QTest::newRow("a model without sourceModel")
        << QByteArray("Item { objectName: 'tree'; property QtObject model: QtObject {} }")
        << "\"tree\" Unable to set associated proxy model sourceModel. Are you using TreeViewAV with a "
           "SortFilterSelectModel?";
}

void tst_TreeCtrl::withoutAProperQmlModel_warnsAndAnswersEmpty()
{
    QFETCH(QByteArray, qml);
    QFETCH(QString, warning);
    QmlFixture fixture;
    QObject* root = fixture.loadData("import QtQuick 2.15\nItem { " + qml + " }");
    m_host->setRoot(root);
    build("a(b)");

    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    m_tree->resyncToUI();
    m_tree->SelectItem(id("b"), true);
    m_tree->ExpandAll(id("a"));
    m_tree->CollapseAll(id("a"));
    std::vector<qwxTreeItemId> selected{id("a")};
    QCOMPARE(m_tree->GetSelections(selected), 0);
    QVERIFY(selected.empty());
    QVERIFY(!m_tree->IsExpanded(id("a")));
    QVERIFY(!m_tree->GetFocusedItem().IsOk());
    QVERIFY(!m_tree->getWxIndexFromSortfilterIndex(m_tree->GetModel()->index(0, 0)).IsOk());
}

QTEST_MAIN(tst_TreeCtrl)
#include "tst_treectrl.moc"
