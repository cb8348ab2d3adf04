// The list control over the kit's real list and table items: its model, both
// modes on one wrapper, the check list and the list connections.
#include <support/hostedqml.h>
#include <support/logrecorder.h>

#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/views/qsortinglistctrl.h>
#include <dlgbridge/views/qwxchecklistbox.h>
#include <dlgbridge/views/qwxlistctrl.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <qut/qtconversions.h>

using namespace dbr;
using namespace dbr::test;

namespace {

enum Role { TextRole = 256, ImageRole, ImageIndexRole, IconRole, TextColourRole, CheckedRole, SelectedRole,
            ClientObjectRole, EnabledRole };

// Client data that counts its instances, so that a test sees each deleted exactly once.
class CountedData : public QObject, public qwxClientData
{
public:
    CountedData() { ++alive; }
    ~CountedData() override { --alive; }
    static int alive;
};
int CountedData::alive = 0;

QAbstractItemModel* modelOf(QObject* item)
{
    return qobject_cast<QAbstractItemModel*>(item->property("model").value<QObject*>());
}

QAbstractItemModel* testedModelOf(QObject* item)
{
    QAbstractItemModel* model = modelOf(item);
    new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::QtTest, model);
    return model;
}

// Rows as "text|text" of their cells, one entry per row.
QStringList rowsOf(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data(TextRole).toString();
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

wxArrayString strings(const std::vector<const char*>& texts)
{
    wxArrayString result;
    for (const char* text : texts)
        result.Add(text);
    return result;
}

} // namespace

class tst_ListCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void typeTable_picksTheWrapperByTheItemsProperties_data();
    void typeTable_picksTheWrapperByTheItemsProperties();
    void model_servesTheDeclaredStringsAndMakesRoomForColumns();
    void model_keepsOneSelectedRow_data();
    void model_keepsOneSelectedRow();
    void resetRows_releasesClientObjectsBeforeTheRowsGo();
    void modes_switchOnTheSameWrapperWhenASecondColumnComes();
    void finding_followsWxCaseRules();
    void selectionWalk_readsTheModelFlags();
    void failures_logTheirTexts();
    void randomEdits_keepTheModelValid();
    void checkList_storesTheMarkBeforeHandlersHearOfIt();
    void checkList_withoutItemStillAnswersFromItsModel();
    void connections_buildListAndGridEvents();
    void queuedConnections_runAfterTheSignalAndNeverAfterTheList();

private:
    qwxListCtrl& list(const char* name) const { return *m_hosted->host.list().child<qwxListCtrl>(name); }

    std::unique_ptr<HostedQml> m_hosted;
};

void tst_ListCtrl::init()
{
    m_hosted = std::make_unique<HostedQml>(QStringLiteral("lists.qml"));
}

void tst_ListCtrl::cleanup()
{
    m_hosted.reset();
    QCOMPARE(CountedData::alive, 0);
}

void tst_ListCtrl::typeTable_picksTheWrapperByTheItemsProperties_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("wrapper");
    QTest::newRow("plain list") << "files" << "qwxListCtrl";
    QTest::newRow("checkable list") << "options" << "qwxCheckListBox";
    QTest::newRow("sorting list") << "sorted" << "qSortingListCtrl";
    QTest::newRow("checkable wins over sorting") << "both" << "qwxCheckListBox";
    QTest::newRow("table") << "report" << "qwxListCtrl";
    QTest::newRow("table with check columns") << "checks" << "qwxCheckListBox";
    QTest::newRow("Qt Quick table") << "plain" << "qwxListCtrl";
}

void tst_ListCtrl::typeTable_picksTheWrapperByTheItemsProperties()
{
    QFETCH(QString, name);
    QFETCH(QString, wrapper);
    qwxWindow* window = m_hosted->host.list().FindWindow(qut::odFromQt(name));
    QVERIFY(window);
    QCOMPARE(window->typeName(), wrapper);
    QCOMPARE(m_hosted->item(qPrintable(name))->property("filterRole").toInt(), 256);
    // A sorting list turns sorting on; a check list leaves the authored value alone.
    if (name == QLatin1String("sorted") || name == QLatin1String("both"))
        QVERIFY(m_hosted->item(qPrintable(name))->property("sortingEnabled").toBool());
}

void tst_ListCtrl::model_servesTheDeclaredStringsAndMakesRoomForColumns()
{
    qwxListCtrl& files = list("files");
    QAbstractItemModel* model = testedModelOf(m_hosted->item("files"));
    QCOMPARE(rowsOf(*model), QStringList({"alpha", "Beta", "gamma"}));
    QCOMPARE(model->columnCount(), 1);

    // The first column goes in front of the texts, which the view's one column no longer shows.
    files.InsertColumn(0, "Name", 100);
    QCOMPARE(model->columnCount(), 1);
    QCOMPARE(files.GetItemText(0), wxString());
    files.InsertColumn(5, "Ignored");
    QCOMPARE(model->columnCount(), 1);
    files.AppendColumn("Size");
    QCOMPARE(model->columnCount(), 2);
    QCOMPARE(model->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Size"));
    QCOMPARE(model->index(0, 1).data(Qt::WhatsThisRole).toInt(), 1);

    // A new row gets one cell per column; an image index below 0 keeps the cell's image.
    QCOMPARE(files.InsertItem(1, "delta", 3, "icon.png"), 1L);
    files.SetItem(1, 1, "4 kB");
    QCOMPARE(rowsOf(*model).at(1), QStringLiteral("delta|4 kB"));
    QCOMPARE(model->index(1, 0).data(ImageIndexRole).toInt(), 3);
    QCOMPARE(model->index(1, 0).data(ImageRole), QVariant(QImage()));
    files.SetItem(1, 0, "delta", -1, "");
    QCOMPARE(model->index(1, 0).data(ImageIndexRole).toInt(), 3);
    QCOMPARE(model->index(1, 0).data(IconRole).toString(), QString());
    QCOMPARE(files.InsertItem(9, "far"), -1L);

    // The model's row state is no one's to write but the selection's.
    QVERIFY(!model->setData(model->index(0, 0), true, CheckedRole));
    files.SetItemTextColour(0, *wxRED);
    QCOMPARE(files.GetItemTextColour(0), *wxRED);
    QCOMPARE(files.GetItemTextColour(1), wxColour(0, 0, 0));
    files.moveRow(2, 2);
    files.moveRow(0, 2);
    QCOMPARE(files.GetItemTextColour(2), *wxRED);
}

void tst_ListCtrl::model_keepsOneSelectedRow_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("select");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("changes");
    QTest::newRow("select another") << 1 << 2 << true << 2 << 2;
    QTest::newRow("select again") << 1 << 1 << true << 1 << 0;
    QTest::newRow("deselect another clears") << 1 << 2 << false << -1 << 1;
    QTest::newRow("select -1 clears") << 1 << -1 << true << -1 << 1;
    QTest::newRow("select out of range clears") << 1 << 7 << true << -1 << 1;
}

void tst_ListCtrl::model_keepsOneSelectedRow()
{
    QFETCH(int, before);
    QFETCH(int, row);
    QFETCH(bool, select);
    QFETCH(int, after);
    QFETCH(int, changes);
    qwxListCtrl& files = list("files");
    QAbstractItemModel* model = testedModelOf(m_hosted->item("files"));
    files.setSelected(before, true);
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    QVERIFY(changed.isValid());
    changed.clear();
    files.setSelected(row, select);
    QCOMPARE(changed.count(), changes);
    QCOMPARE(files.GetNextItem(-1), after);
}

void tst_ListCtrl::resetRows_releasesClientObjectsBeforeTheRowsGo()
{
    qwxListCtrl& files = list("files");
    QAbstractItemModel* model = testedModelOf(m_hosted->item("files"));
    files.Append("with data", new CountedData);
    auto* data = new CountedData;
    files.Append("observed", data);
    QCOMPARE(model->index(4, 0).data(ClientObjectRole).value<QObject*>(), data);

    // A view sees the cell empty while the object still lives.
    int aliveWhenEmptied = -1;
    connect(model, &QAbstractItemModel::dataChanged, this, [&](const QModelIndex& index) {
        if (index.row() == 4) {
            QCOMPARE(index.data(ClientObjectRole).value<QObject*>(), nullptr);
            aliveWhenEmptied = CountedData::alive;
        }
    });
    files.reset(strings({"only"}));
    QCOMPARE(aliveWhenEmptied, 1);
    QCOMPARE(CountedData::alive, 0);
    QCOMPARE(rowsOf(*model), QStringList{"only"});

    files.SetItemData(0, 0, std::make_unique<CountedData>());
    std::unique_ptr<qwxClientData> taken = files.ExtractItemData(0, 0);
    QVERIFY(taken);
    QCOMPARE(files.GetClientObject(0), nullptr);
    QVERIFY(!files.ExtractItemData(0, 0));
    QVERIFY(!files.ExtractItemData(3, 0));
}

void tst_ListCtrl::modes_switchOnTheSameWrapperWhenASecondColumnComes()
{
    qwxListCtrl& files = list("files");
    QObject* item = m_hosted->item("files");
    files.SetSelection(2);
    QCOMPARE(item->property("currentIndex").toInt(), 2);
    QCOMPARE(files.GetSelection(), 2);
    QCOMPARE(files.GetStringSelection(), wxString("gamma"));
    // Clear takes the selection away first; DeleteAllItems leaves it to the item.
    files.SetSelection(1);
    files.DeleteAllItems();
    QCOMPARE(item->property("currentIndex").toInt(), -1);
    files.Append(strings({"a", "b", "c"}));
    files.SetSelection(1);
    files.Clear();
    QCOMPARE(item->property("currentIndex").toInt(), -1);

    qwxListCtrl& report = list("report");
    QObject* table = m_hosted->item("report");
    report.Append("one");
    report.Append("two");
    report.SetSelection(1);
    QCOMPARE(table->property("currentIndex").toInt(), 1);
    QCOMPARE(table->property("selectedSourceRows").value<QModelIndexList>(), QModelIndexList());
    report.InsertColumn(0, "Name");
    report.InsertColumn(1, "Size");
    report.SetSelection(1);
    QCOMPARE(report.GetSelection(), 1);
    QCOMPARE(report.getSelectedTableSourceIndices(), std::vector<int>{1});
    report.SetSelection(-1);
    QCOMPARE(table->property("selectedSourceRows").value<QModelIndexList>(), QModelIndexList());
    QCOMPARE(report.GetSelection(), -1);
    report.EnsureVisible(1);
}

void tst_ListCtrl::finding_followsWxCaseRules()
{
    qwxListCtrl& files = list("files");
    files.Append("Gamma ray");
    QCOMPARE(files.FindString("beta", true), -1);
    QCOMPARE(files.FindString("beta", false), 1);
    QVERIFY(files.SetStringSelection("BETA"));
    QCOMPARE(files.GetSelection(), 1);
    QVERIFY(!files.SetStringSelection("delta"));
    QCOMPARE(files.FindItem(-3, "GAM", true), 2);
    QCOMPARE(files.FindItem(3, "gam", true), 3);
    QCOMPARE(files.FindItem(0, "ray", true), -1);
    QCOMPARE(files.FindItem(0, "gamma"), 2);
    QCOMPARE(files.FindItem(4, "gamma"), -1);
    QCOMPARE(files.FindItem(0, ""), -1);

    QCOMPARE(files.Append("e"), 4);
    QCOMPARE(files.Append(strings({"t", "u"}), strings({"i", "j", "k"})), -1);
    QCOMPARE(files.GetCount(), 5);
    QCOMPARE(files.Append(strings({"t", "u"}), strings({"i.png", "j.png"})), 0);
    QCOMPARE(files.GetCount(), 7);
}

void tst_ListCtrl::selectionWalk_readsTheModelFlags()
{
    qwxListCtrl& files = list("files");
    files.setSelected(2, true);
    QCOMPARE(files.GetNextItem(-1, qwxListCtrl::NextAll, qwxListCtrl::StateSelected), 2);
    QCOMPARE(files.GetNextItem(2), -1);
    QCOMPARE(files.GetSelectedItemCount(), 1);
    QCOMPARE(files.GetSelections(), std::vector<int>{2});

    // Select and SetItemState act on the item's current row, which the kit flags in the model.
    files.Select(1);
    QCOMPARE(files.GetSelection(), 1);
    QCOMPARE(files.GetNextItem(-1), 1);
    files.Select(2, false);
    QCOMPARE(files.GetSelection(), 1);
    files.SetItemState(1, 4, 0);
    QCOMPARE(files.GetSelection(), 1);
    files.SetItemState(1, 0, 4);
    QCOMPARE(files.GetSelection(), -1);
    QCOMPARE(files.GetSelectedItemCount(), 0);
    files.SetItemState(0, 4, 4);
    QCOMPARE(files.GetSelection(), 0);
}

void tst_ListCtrl::failures_logTheirTexts()
{
    qwxListCtrl& files = list("files");
    QTest::ignoreMessage(QtWarningMsg, "\"files\" : geometry not supported 1");
    QCOMPARE(files.GetNextItem(2, 1, 15), 2);
    QTest::ignoreMessage(QtWarningMsg, "\"files\" : state not supported 2");
    QCOMPARE(files.GetNextItem(2, 14, 2), -1);
    QTest::ignoreMessage(QtWarningMsg, "Unknown list event ID: 3");
    files.Bind(3, [](qwxListEvent&) {});

    int payload = 0;
    files.Append("pointer", &payload);
    QCOMPARE(files.GetClientData(3), &payload);
    files.Append("text", new qwxStringClientData("x"));
    QTest::ignoreMessage(QtDebugMsg, "GetCientData used on non-void data");
    QCOMPARE(files.GetClientData(4), nullptr);
    QTest::ignoreMessage(QtDebugMsg, "GetCientData used on non-void data");
    QCOMPARE(files.GetClientData(0), nullptr);
    QCOMPARE(files.GetClientData(9), nullptr);
}

void tst_ListCtrl::randomEdits_keepTheModelValid()
{
    qwxListCtrl& report = list("report");
    QAbstractItemModel* model = testedModelOf(m_hosted->item("report"));
    QRandomGenerator random(7);
    int added = 0;
    for (int turn = 0; turn < 400; ++turn) {
        const int rows = report.GetCount();
        const int row = random.bounded(-1, rows + 2);
        switch (random.bounded(10)) {
        case 0: report.InsertItem(row, qut::wxFromQt(QStringLiteral("r%1").arg(turn))); break;
        case 1:
            report.Append("data", new CountedData);
            ++added;
            break;
        case 2:
            if (random.bounded(8) == 0)
                report.InsertColumn(random.bounded(-1, 4), "column");
            break;
        case 3: report.moveRow(random.bounded(0, rows + 1), random.bounded(0, rows + 1)); break;
        case 4: report.DeleteItem(row); break;
        case 5:
            if (random.bounded(12) == 0)
                report.reset(strings(std::vector<const char*>(std::size_t(random.bounded(4)), "reset")));
            break;
        case 6: report.Check(row, random.bounded(2)); break;
        case 7: report.setSelected(row, random.bounded(2)); break;
        case 8: report.setEnabled(row, random.bounded(2)); break;
        case 9: report.SetItemData(row, random.bounded(-1, 3), std::make_unique<CountedData>()); break;
        }
        QVERIFY(report.GetSelectedItemCount() <= 1);
        QVERIFY(CountedData::alive <= report.GetCount() * std::max(1, model->columnCount()));
    }
    QVERIFY(added > 0);
}

void tst_ListCtrl::checkList_storesTheMarkBeforeHandlersHearOfIt()
{
    auto& options = dynamic_cast<qwxCheckListBox&>(list("options"));
    QObject* item = m_hosted->item("options");
    options.Append(strings({"one", "two", "three"}));
    options.setEnabled(2, false);
    std::vector<std::pair<int, bool>> heard;
    m_hosted->host.list().connectToCheckListboxEvent("options", [&](qwxCommandEvent& event) {
        heard.emplace_back(event.GetSelection(), options.IsChecked(event.GetSelection()));
    });

    QMetaObject::invokeMethod(item, "checkedChanged", Q_ARG(int, 1), Q_ARG(bool, true));
    QMetaObject::invokeMethod(item, "checkedChanged", Q_ARG(int, 2), Q_ARG(bool, true));
    QMetaObject::invokeMethod(item, "checkedChanged", Q_ARG(int, 8), Q_ARG(bool, true));
    QCOMPARE(heard, (std::vector<std::pair<int, bool>>{{1, true}, {2, false}, {8, false}}));
    options.Check(2, true);
    QVERIFY(!options.IsChecked(2));
}

void tst_ListCtrl::checkList_withoutItemStillAnswersFromItsModel()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Did not find object"));
    LogRecorder quiet;
    TestHost host(m_hosted->host.root());
    qwxCheckListBox orphan("nowhere", host);
    orphan.Append("first");
    orphan.Check(0);
    QVERIFY(orphan.IsChecked(0));
    orphan.Check(0, false);
    QVERIFY(!orphan.IsChecked(0));
}

void tst_ListCtrl::connections_buildListAndGridEvents()
{
    QmlChildList& children = m_hosted->host.list();
    qwxListCtrl& files = list("files");
    QObject* item = m_hosted->item("files");
    files.SetItemData(1, 0, std::make_unique<qwxStringClientData>("beta data"));

    QStringList heard;
    children.connectToListBoxSelectedEvent(
        "files", [&](qwxCommandEvent& event) { heard << "text " + qut::toQt(event.GetString()); });
    children.connectToListItemSelectedEvent("files", [&](qwxListEvent& event) {
        const auto* data = dynamic_cast<qwxStringClientData*>(event.GetClientObject());
        heard << QStringLiteral("row %1 %2").arg(event.GetIndex()).arg(data ? qut::toQt(data->GetData()) : "-");
    });
    children.connectToListSelectionEvent("files",
                                         [&](qwxListEvent& event) { heard << QStringLiteral("selection %1").arg(event.GetIndex()); });
    files.SetSelection(1);
    files.SetSelection(-1);
    QCOMPARE(heard, QStringList({"text Beta", "row 1 beta data", "selection -1", "text ", "selection -1"}));
    Q_UNUSED(item)

    qwxListCtrl& report = list("report");
    QObject* table = m_hosted->item("report");
    report.InsertColumn(0, "Name");
    report.InsertColumn(1, "Value");
    report.InsertItem(0, "width");
    report.SetItemData(0, 1, std::make_unique<qwxStringClientData>("cell data"));
    heard.clear();
    children.connectToTableTextAcceptedEvent("report", [&](qwxGridEvent& event) {
        const auto* data = dynamic_cast<qwxStringClientData*>(event.GetClientObject());
        heard << QStringLiteral("cell %1,%2 %3 %4")
                     .arg(event.GetRow())
                     .arg(event.GetCol())
                     .arg(qut::toQt(event.GetString()), data ? qut::toQt(data->GetData()) : "-");
    });
    children.connectToTableSelectionEvent(
        "report", [&](qwxGridEvent& event) { heard << QStringLiteral("table selection %1").arg(event.GetRow()); });
    QMetaObject::invokeMethod(table, "tableCellChanged", Q_ARG(int, 0), Q_ARG(int, 1), Q_ARG(QString, "12"));
    QMetaObject::invokeMethod(table, "tableCellChanged", Q_ARG(int, -1), Q_ARG(int, 1), Q_ARG(QString, "x"));
    report.SetSelection(0);
    QCOMPARE(heard, QStringList({"cell 0,1 12 cell data", "table selection -1"}));

    QTest::ignoreMessage(QtWarningMsg, "(nothing) Did not find wrapper component");
    children.connectToListItemSelectedEvent("nothing", [](qwxListEvent&) {});
}

void tst_ListCtrl::queuedConnections_runAfterTheSignalAndNeverAfterTheList()
{
    QmlChildList& children = m_hosted->host.list();
    QObject* item = m_hosted->item("files");
    bool signalReturned = false;
    QStringList heard;
    children.connectToListDoubleClickedEvent("files", [&](qwxListEvent& event) {
        heard << QStringLiteral("double %1 after %2").arg(event.GetIndex()).arg(signalReturned);
    });
    list("files").Bind(qwxListCtrl::RightClickEvent, [&](qwxListEvent& event) {
        heard << QStringLiteral("right %1 after %2").arg(event.GetIndex()).arg(signalReturned);
    });
    QMetaObject::invokeMethod(item, "doubleClicked", Q_ARG(int, 2));
    QMetaObject::invokeMethod(item, "rightClicked", Q_ARG(int, 0));
    QMetaObject::invokeMethod(item, "rightClicked", Q_ARG(int, -1));
    signalReturned = true;
    QVERIFY(heard.isEmpty());
    QTRY_COMPARE(heard, QStringList({"double 2 after 1", "right 0 after 1"}));

    // A list (and its callbacks) gone before delivery drops the call.
    heard.clear();
    QMetaObject::invokeMethod(item, "doubleClicked", Q_ARG(int, 1));
    m_hosted->host.list().reset();
    QCoreApplication::processEvents();
    QVERIFY(heard.isEmpty());
}

QTEST_MAIN(tst_ListCtrl)
#include "tst_listctrl.moc"
