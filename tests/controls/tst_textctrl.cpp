#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QSignalSpy>
#include <QTest>

#include <wx/event.h>

#include <qut/qtconversions.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"

using namespace dbr;
using namespace dbr::test;

class tst_TextCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<HostedQml>("texts.qml"); }
    void cleanup() { m_ui.reset(); }
    void setValue_goesThroughClearAndInsertOnlyForANewText_data();
    void setValue_goesThroughClearAndInsertOnlyForANewText();
    void changeValue_reachesNoHandler_data();
    void changeValue_reachesNoHandler();
    void style_isOneMessageAndNoEffect();
    void connect_killFocusArrivesWhenEditingFinishes();

private:
    qwxTextCtrl& text(const char* name) { return *m_ui->host.list().child<qwxTextCtrl>(name); }
    QObject* item(const char* name) const { return m_ui->item(name); }

    std::unique_ptr<HostedQml> m_ui;
};

void tst_TextCtrl::setValue_goesThroughClearAndInsertOnlyForANewText_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("text field") << QByteArray("name");
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

void tst_TextCtrl::changeValue_reachesNoHandler_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("text field") << QByteArray("name");
    QTest::newRow("search field shares the routine") << QByteArray("search");
}

void tst_TextCtrl::changeValue_reachesNoHandler()
{
    QFETCH(QByteArray, name);
    QStringList heard;
    m_ui->host.list().connectToTextEvent(name.constData(),
                                         [&](qwxCommandEvent& event) { heard.append(qut::toQt(event.GetString())); });
    const auto edit = [](auto& control) {
        control.SetValue("typed");
        control.ChangeValue("quiet");
        QCOMPARE(qut::toQt(control.GetValue()), QStringLiteral("quiet"));
        control.SetValue("loud");
    };
    if (name == "search")
        edit(*m_ui->host.list().child<qwxSearchCtrl>("search"));
    else
        edit(text("name"));
    // The insert of "typed" and of "loud" are heard, with the text as it stands then.
    QCOMPARE(heard, (QStringList{"typed", "", "loud"}));
    QVERIFY(!item(name.constData())->signalsBlocked());
}

void tst_TextCtrl::style_isOneMessageAndNoEffect()
{
    {
        LogRecorder log;
        qwxTextCtrl plain("name", m_ui->host);
        QVERIFY(log.lines().isEmpty());
    }
    QTest::ignoreMessage(QtDebugMsg,
                         "qwxTextCtrl: ignore flags. Please update the qml component (if required) and remove the "
                         "flags from C++.\n\nFlags that don't need any changes and can just be removed:\n* "
                         "wxTE_NOHIDESEL\n* wxTE_PROCESS_ENTER\n* wxTE_RICH\n");
    qwxTextCtrl styled("name", m_ui->host, 0x4000);
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
    m_ui->host.list().resetCallbacks();
    QVERIFY(QMetaObject::invokeMethod(item("name"), "editingFinished"));
    QCOMPARE(focusLost, 1);
}

QTEST_MAIN(tst_TextCtrl)
#include "tst_textctrl.moc"
