#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QSignalSpy>
#include <QTest>

#include <wx/event.h>

#include <qut/qtconversions.h>

#include "support/logrecorder.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"

using namespace dbr;
using namespace dbr::test;

class tst_TextCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setValue_goesThroughClearAndInsertOnlyForANewText_data();
    void setValue_goesThroughClearAndInsertOnlyForANewText();
    void changeValue_reachesNoHandler();
    void searchField_sharesTheTextRoutine();
    void selectionAndCursor_followTheItem();
    void style_isOneMessageAndNoEffect();
    void connect_killFocusArrivesWhenEditingFinishes();

private:
    qwxTextCtrl& text(const char* name);
    QObject* item(const char* name) const { return m_host->root()->findChild<QObject*>(QLatin1String(name)); }

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
};

void tst_TextCtrl::init()
{
    m_qml = std::make_unique<QmlFixture>();
    m_host = std::make_unique<TestHost>(m_qml->loadFile(QStringLiteral("texts.qml")));
    QVERIFY(m_host->root());
    m_host->populate();
}

void tst_TextCtrl::cleanup()
{
    m_host.reset();
    m_qml.reset();
}

qwxTextCtrl& tst_TextCtrl::text(const char* name)
{
    qwxTextCtrl* control = m_host->list().child<qwxTextCtrl>(name);
    Q_ASSERT(control);
    return *control;
}

void tst_TextCtrl::setValue_goesThroughClearAndInsertOnlyForANewText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("text field") << QByteArray("name");
    QTest::newRow("text area") << QByteArray("notes");
    QTest::newRow("scrollable text area") << QByteArray("log");
}

void tst_TextCtrl::setValue_goesThroughClearAndInsertOnlyForANewText()
{
    QFETCH(QByteArray, name);
    qwxTextCtrl& control = text(name.constData());
    QSignalSpy changes(item(name.constData()), SIGNAL(textChanged()));
    QVERIFY(changes.isValid());
    QVERIFY(!control.IsModified());

    control.SetValue("Plan A");
    QCOMPARE(qut::toQt(control.GetValue()), QStringLiteral("Plan A"));
    QCOMPARE(changes.count(), 1); // the item was empty: only the insert changed it
    // Typed in as by the user, the text can be undone.
    QVERIFY(control.IsModified());

    control.SetValue("Plan A");
    QCOMPARE(changes.count(), 1);

    control.SetValue("plan a"); // case counts
    QCOMPARE(changes.count(), 3);

    control.SetValue(wxString());
    QCOMPARE(changes.count(), 4);
    QVERIFY(control.GetValue().empty());
    QCOMPARE(control.IsModified(), item(name.constData())->property("canUndo").toBool());
}

void tst_TextCtrl::changeValue_reachesNoHandler()
{
    QStringList heard;
    m_host->list().connectToTextEvent("name", [&](qwxCommandEvent& event) { heard.append(qut::toQt(event.GetString())); });

    text("name").SetValue("typed");
    text("name").ChangeValue("quiet");
    QCOMPARE(qut::toQt(text("name").GetValue()), QStringLiteral("quiet"));
    text("name").SetValue("loud");
    // The insert of "typed" and of "loud" are heard, with the text as it stands then.
    QCOMPARE(heard, (QStringList{"typed", "", "loud"}));
    QVERIFY(!item("name")->signalsBlocked());
}

void tst_TextCtrl::searchField_sharesTheTextRoutine()
{
    qwxSearchCtrl* search = m_host->list().child<qwxSearchCtrl>("search");
    QVERIFY(search);
    QStringList heard;
    m_host->list().connectToTextEvent("search", [&](qwxCommandEvent& event) { heard.append(qut::toQt(event.GetString())); });

    search->SetDescriptiveText("Find a layer");
    QCOMPARE(item("search")->property("placeholderText").toString(), QStringLiteral("Find a layer"));
    search->SetValue("wall");
    search->ChangeValue("door");
    QCOMPARE(qut::toQt(search->GetValue()), QStringLiteral("door"));
    QCOMPARE(heard, QStringList{"wall"});
}

void tst_TextCtrl::selectionAndCursor_followTheItem()
{
    qwxTextCtrl& control = text("name");
    control.SetValue("hello world");
    control.SetSelection(6, 11);
    QCOMPARE(qut::toQt(control.GetStringSelection()), QStringLiteral("world"));
    long from = -1;
    long to = -1;
    control.GetSelection(&from, &to);
    QCOMPARE(from, 6L);
    QCOMPARE(to, 11L);

    long untouched = 99;
    control.GetSelection(nullptr, &untouched);
    QCOMPARE(untouched, 99L);

    control.SetInsertionPoint(3);
    QCOMPARE(control.GetInsertionPoint(), 3L);
    QCOMPARE(control.GetLastPosition(), 11);
    control.ShowPosition(0);
}

void tst_TextCtrl::style_isOneMessageAndNoEffect()
{
    {
        LogRecorder log;
        qwxTextCtrl plain("name", *m_host);
        QVERIFY(log.lines().isEmpty());
    }
    QTest::ignoreMessage(QtDebugMsg,
                         "qwxTextCtrl: ignore flags. Please update the qml component (if required) and remove the "
                         "flags from C++.\n\nFlags that don't need any changes and can just be removed:\n* "
                         "wxTE_NOHIDESEL\n* wxTE_PROCESS_ENTER\n* wxTE_RICH\n");
    qwxTextCtrl styled("name", *m_host, 0x4000);
    styled.SetValue("still works");
    QCOMPARE(item("name")->property("text").toString(), QStringLiteral("still works"));
}

void tst_TextCtrl::connect_killFocusArrivesWhenEditingFinishes()
{
    qwxTextCtrl& control = text("name");
    int focusLost = 0;
    control.Connect(wxEVT_KILL_FOCUS, [&](qwxFocusEvent& event) {
        QCOMPARE(event.GetEventObject(), static_cast<qwxWindow*>(&control));
        ++focusLost;
    });
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("(name) Not connecting to event %1").arg(wxEVT_SET_FOCUS)));
    control.Connect(wxEVT_SET_FOCUS, [&](qwxFocusEvent&) { ++focusLost; });

    QVERIFY(QMetaObject::invokeMethod(item("name"), "editingFinished"));
    QCOMPARE(focusLost, 1);
    m_host->list().resetCallbacks();
    QVERIFY(QMetaObject::invokeMethod(item("name"), "editingFinished"));
    QCOMPARE(focusLost, 1);
}

QTEST_MAIN(tst_TextCtrl)
#include "tst_textctrl.moc"
