#include <dlgbridge/controls/choicelistmodel.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxdialog.h>
#include <dlgbridge/hosting/qwxexistingpanel.h>

#include <QAbstractItemModelTester>
#include <QLoggingCategory>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <qut/qtconversions.h>
#include <qut/stringlistmodel.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"
#include "support/paths.h"

#include <quickhost/quickhost.h>
#include <quickhost/quickpanel.h>

using namespace dbr;
using namespace dbr::test;

namespace {

// Client data that counts its own deletion; rows outlive a test function, so the count is no local.
struct CountedData : qwxClientData
{
    ~CountedData() override { ++deleted; }
    static int deleted;
};

int CountedData::deleted = 0;

QStringList rowsOf(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows.append(model.index(row, 0).data().toString());
    return rows;
}

wxArrayString wxStrings(const QStringList& strings)
{
    wxArrayString result;
    for (const QString& text : strings)
        result.Add(qut::wxFromQt(text));
    return result;
}

} // namespace

class tst_Choice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<HostedQml>("choices.qml"); }
    void cleanup() { m_ui.reset(); }
    void walk_keepsTheEntriesWrittenInQml();
    void choiceEdits_notifyRowByRow();
    void choice_ownsItsClientData();
    void combo_searchesThroughTheItem();
    void valueEvents_carryTheValueWhenTheSignalArrives();
    void textEvent_picksTheSignalByType();
    void secondLoad_showsTheDeclaredEntriesAgain();
    void dialogReload_rebuildsOverTheSameItems();
    void panelReload_readsTheNewItems();

private:
    QObject* item(const char* name) const { return m_ui->item(name); }
    qwxChoice& choice() { return *m_ui->host.list().child<qwxChoice>("kind"); }
    qwxComboBox& combo() { return *m_ui->host.list().child<qwxComboBox>("path"); }

    std::unique_ptr<HostedQml> m_ui;
};

void tst_Choice::walk_keepsTheEntriesWrittenInQml()
{
    QCOMPARE(rowsOf(choice().model()), (QStringList{"a", "b"}));
    QCOMPARE(rowsOf(combo().model()), (QStringList{"Alpha", "beta"}));
    // The item shows the wrapper's model now, and keeps the selection.
    QCOMPARE(item("kind")->property("model").value<QObject*>(), static_cast<QObject*>(&choice().model()));
    QCOMPARE(item("path")->property("count").toInt(), 2);
    choice().SetSelection(1);
    QCOMPARE(item("kind")->property("currentIndex").toInt(), 1);
    QCOMPARE(qut::toQt(choice().GetValue()), QStringLiteral("b"));
    choice().Select(-1);
    QVERIFY(choice().GetStringSelection().empty());
}

void tst_Choice::choiceEdits_notifyRowByRow()
{
    ChoiceListModel& model = choice().model();
    new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest, &model);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(inserted.isValid() && reset.isValid() && changed.isValid());

    choice().Append(wxStrings({"c", "d"}));
    QCOMPARE(inserted.count(), 2);
    choice().Insert(1, wxStrings({"x", "y"}));
    QCOMPARE(inserted.count(), 3);
    choice().InsertString(0, "first");
    choice().Insert(99, "nowhere");
    choice().Insert(-1, wxStrings({"nowhere"}));
    QCOMPARE(rowsOf(model), (QStringList{"first", "a", "x", "y", "b", "c", "d"}));

    choice().SetString(2, "X");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.last().at(2).value<QVector<int>>(), QVector<int>{Qt::DisplayRole});
    choice().SetString(7, "none");
    QCOMPARE(changed.count(), 1);

    choice().Delete(0);
    choice().Delete(6);
    choice().Delete(-1);
    QCOMPARE(choice().FindString("X"), 1);
    QCOMPARE(choice().FindString("x"), -1);

    choice().Set(wxStrings({"one", "two"}));
    QCOMPARE(reset.count(), 1);
    choice().Clear();
    QCOMPARE(reset.count(), 2);
    QCOMPARE(choice().GetCount(), 0);
}

void tst_Choice::choice_ownsItsClientData()
{
    CountedData::deleted = 0;
    auto* kept = new CountedData;
    choice().Append("with data", kept);
    QCOMPARE(choice().GetCount(), 3);
    QCOMPARE(choice().GetClientObject(choice().GetCount() - 1), kept);
    QCOMPARE(choice().GetClientObject(3), nullptr);

    // A row that can't be inserted takes its client data with it.
    choice().Insert("too far", choice().GetCount() + 1, new CountedData);
    QCOMPARE(CountedData::deleted, 1);
    QCOMPARE(choice().GetCount(), 3);

    choice().SetString(2, "renamed");
    QCOMPARE(CountedData::deleted, 2);
    QCOMPARE(choice().GetClientObject(2), nullptr);

    choice().Insert("again", 0, new CountedData);
    choice().Delete(0);
    QCOMPARE(CountedData::deleted, 3);
    choice().Append("last", new CountedData);
    m_ui.reset(); // the wrappers go, and their rows with them
    QCOMPARE(CountedData::deleted, 4);
}

void tst_Choice::combo_searchesThroughTheItem()
{
    qwxComboBox& path = combo();
    new QAbstractItemModelTester(&path.model(), QAbstractItemModelTester::FailureReportingMode::QtTest, &path.model());
    // Qt Quick Controls' exact match compares exactly, whatever the case flag.
    QCOMPARE(path.FindString("Alpha", false), 0);
    QCOMPARE(path.FindString("alpha", false), -1);

    path.SetValue("beta");
    QCOMPARE(path.GetSelection(), 1);
    path.SetValue("free text");
    QCOMPARE(qut::toQt(path.GetValue()), QStringLiteral("free text"));
    QCOMPARE(path.GetSelection(), -1);

    QSignalSpy inserted(&path.model(), &QAbstractItemModel::rowsInserted);
    QVERIFY(inserted.isValid());
    QCOMPARE(path.Append("gamma"), 2);
    wxSortedArrayString sorted;
    sorted.Add("zeta");
    sorted.Add("eta");
    path.Append(sorted);
    QCOMPARE(inserted.count(), 2);
    QCOMPARE(rowsOf(path.model()), (QStringList{"Alpha", "beta", "gamma", "eta", "zeta"}));
    path.Set(wxStrings({"one"}));
    QCOMPARE(rowsOf(path.model()), QStringList{"one"});

    // Without its item a combo can't search, and says so.
    qwxComboBox orphan("gone", m_ui->host);
    QTest::ignoreMessage(QtWarningMsg, "Did not find object \"gone\"");
    QTest::ignoreMessage(QtWarningMsg, "qwxComboBox::FindString failed: child not found");
    QCOMPARE(orphan.FindString("one", false), -1);
}

void tst_Choice::valueEvents_carryTheValueWhenTheSignalArrives()
{
    auto* data = new CountedData;
    choice().Append("c", data);
    QList<int> selections;
    QList<qwxClientData*> clientObjects;
    QStringList texts;
    QmlChildList& list = m_ui->host.list();
    list.connectToChoiceEvent("kind", [&](qwxCommandEvent& event) {
        selections.append(event.GetSelection());
        clientObjects.append(event.GetClientObject());
    });
    list.connectToComboEvent("path", [&](qwxCommandEvent& event) { texts.append(qut::toQt(event.GetString())); });
    // A combo asked for as a choice gives an event without value.
    list.connectToChoiceEvent("path", [&](qwxCommandEvent& event) { selections.append(event.GetSelection()); });

    choice().Select(2);
    QVERIFY(QMetaObject::invokeMethod(item("kind"), "activated", Q_ARG(int, 2)));
    choice().Select(0);
    QVERIFY(QMetaObject::invokeMethod(item("kind"), "activated", Q_ARG(int, 0)));
    combo().SetValue("beta");
    QVERIFY(QMetaObject::invokeMethod(item("path"), "activated", Q_ARG(int, 1)));

    QCOMPARE(selections, (QList<int>{2, 0, 0}));
    QCOMPARE(clientObjects, (QList<qwxClientData*>{data, nullptr}));
    QCOMPARE(texts, QStringList{"beta"});
}

void tst_Choice::textEvent_picksTheSignalByType()
{
    QLoggingCategory::setFilterRules(QStringLiteral("arvela.qt.dlgconv.init.signals.debug=true"));
    QmlChildList& list = m_ui->host.list();
    QStringList heard;
    auto note = [&](qwxCommandEvent& event) {
        heard.append(event.GetEventObject()->wrappedObjectName() + '=' + qut::toQt(event.GetString()) +
                     QString::number(event.GetSelection()));
    };
    {
        LogRecorder log;
        list.connectToTextEvent("wxID_ANY", note);
        // The search field is no text control for a wildcard.
        QCOMPARE(log.lines(), (QStringList{"Connect 2editTextChanged() (qwxComboBox) to path",
                                           "Connect 2textChanged() (qwxTextCtrl) to name"}));
    }
    QLoggingCategory::setFilterRules(QString());
    list.connectToTextEvent("count", note);
    list.connectToTextEvent("search", note);

    item("path")->setProperty("editText", QStringLiteral("typed"));
    item("name")->setProperty("text", QStringLiteral("n"));
    item("search")->setProperty("text", QStringLiteral("s"));
    list.child<qwxSpinCtrl>("count")->SetValue(4);
    QVERIFY(QMetaObject::invokeMethod(item("count"), "valueModified"));
    QCOMPARE(heard, (QStringList{"path=typed0", "name=n0", "search=s0", "count=4"}));
}

void tst_Choice::secondLoad_showsTheDeclaredEntriesAgain()
{
    choice().Append("c");
    combo().Append("gamma");
    // The items stay and get new wrappers, which must not find the former ones' models.
    m_ui->host.populate();
    QCOMPARE(rowsOf(choice().model()), (QStringList{"a", "b"}));
    QCOMPARE(rowsOf(combo().model()), (QStringList{"Alpha", "beta"}));
    QCOMPARE(item("kind")->property("count").toInt(), 2);
    QCOMPARE(item("path")->property("model").value<QObject*>(), static_cast<QObject*>(&combo().model()));

    // Without wrappers the items show what their QML declared.
    m_ui->host.list().reset();
    QCOMPARE(item("kind")->property("model").toStringList(), (QStringList{"a", "b"}));
    QCOMPARE(item("path")->property("count").toInt(), 2);
}

void tst_Choice::dialogReload_rebuildsOverTheSameItems()
{
    m_ui.reset();
    QmlFixture qml;
    QObject* root = qml.loadFile(QStringLiteral("choices.qml"));
    const auto item = [root](const char* name) { return root->findChild<QObject*>(QLatin1String(name)); };
    qwxDialog dialog(qobject_cast<QQuickItem*>(root));
    int loads = 0;
    dialog.setInitDialogFunctor([&loads](qwxInitDialogEvent&) { ++loads; });
    QTRY_COMPARE(loads, 1);
    QmlChildList& list = *dialog.qmlChildren(qwxWindow::OwnListOnly);
    list.child<qwxChoice>("kind")->Append("c");
    QCOMPARE(item("kind")->property("count").toInt(), 3);

    dialog.reloadContent();
    QTRY_COMPARE(loads, 2);
    QCOMPARE(list.child<qwxChoice>("kind")->GetCount(), 2);
    QCOMPARE(item("kind")->property("count").toInt(), 2);
    QCOMPARE(qut::toQt(list.child<qwxComboBox>("path")->GetValue()), QStringLiteral("Alpha"));
}

void tst_Choice::panelReload_readsTheNewItems()
{
    m_ui.reset();
    quickhost::QuickHost host({qmlImportDir()});
    quickhost::QuickPanel application(host.engine(), testDataUrl(QStringLiteral("choices.qml")));
    qwxExistingPanel panel;
    panel.setPanel(&application);
    panel.loadContent();
    auto* path = panel.qmlChildren(qwxWindow::OwnListOnly)->child<qwxComboBox>("path");
    QVERIFY(path);

    application.reload();
    panel.onQmlReloaded();
    // The wrapper reads and writes the item it finds now, which shows its own entries.
    const auto newItem = [&] { return application.root()->findChild<QObject*>(QStringLiteral("path")); };
    QCOMPARE(path->FindString("beta", false), 1);
    path->SetSelection(1);
    QCOMPARE(newItem()->property("currentIndex").toInt(), 1);
    QCOMPARE(qut::toQt(path->GetValue()), QStringLiteral("beta"));
}

QTEST_MAIN(tst_Choice)
#include "tst_choice.moc"
