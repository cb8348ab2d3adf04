#include <dlgbridge/core/qmlchildlist.h>

#include <QLoggingCategory>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

#include <wx/defs.h>

#include <qut/qtconversions.h>

#include <functional>
#include <stdexcept>

#include "support/hostedqml.h"
#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/messages.h"

using namespace dbr;
using namespace dbr::test;

namespace {

using Connect = std::function<void(TestHost&, const EventHandler<qwxCommandEvent>&)>;
// Binds a handler that notes what it hears.
using Bind = std::function<void(QmlChildList&, QStringList& heard)>;
// Makes the items of the fixture raise their signals.
using Raise = std::function<void(HostedQml&)>;

template<typename Event>
EventHandler<Event> noting(QStringList& heard, const char* what)
{
    return [&heard, what](Event& event) { heard.append(QLatin1String(what) + ':' + qut::toQt(event.GetId())); };
}

QString describeKey(const qwxKeyEvent& event)
{
    return QStringLiteral("key %1 '%2' shift %3")
        .arg(QString::number(event.getKey()), QString(QChar(event.GetUnicodeKey())), QString::number(event.ShiftDown()));
}

void typeInto(HostedQml& ui, const char* name, Qt::Key key)
{
    auto* item = qobject_cast<QQuickItem*>(ui.item(name));
    item->forceActiveFocus();
    QTest::keyClick(item->window(), key);
}

} // namespace

Q_DECLARE_METATYPE(Connect)
Q_DECLARE_METATYPE(Bind)
Q_DECLARE_METATYPE(Raise)

class tst_Connections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("arvela.qt.dlgconv.*.debug=true")); }
    void init() { m_ui = std::make_unique<HostedQml>("controls.qml"); }
    void cleanup() { m_ui.reset(); }

    void click_reachesHandlersInOrderUntilReset();
    void refusals_logAndBindNothing_data();
    void refusals_logAndBindNothing();
    void emptyHandler_throwsOnlyWhenTheSignalArrives();
    void signalPaths_reachTheirHandlers_data();
    void signalPaths_reachTheirHandlers();
    void missingSignal_isLoggedAsAConnectionFailure();
    void repopulate_silencesTheItemsOfDyingWrappers();

private:
    void emitSignal(const char* name, const char* signal) { QVERIFY(QMetaObject::invokeMethod(m_ui->item(name), signal)); }
    QmlChildList& list() { return m_ui->host.list(); }

    std::unique_ptr<HostedQml> m_ui;
};

void tst_Connections::click_reachesHandlersInOrderUntilReset()
{
    QStringList heard;
    auto note = [&heard](const char* how) {
        return [&heard, how](qwxCommandEvent& event) { heard.append(how + (':' + qut::toQt(event.GetId()))); };
    };
    LogRecorder log;
    list().connectToClickEvent("outline", note("name"));
    list().connectToClickEvent(wxID_OK, note("id"));
    list().connectToClickEvent(-1, note("any"));
    // The wildcard takes buttons and bitmap buttons, in key order, and nothing else.
    QCOMPARE(
        log.lines(),
        (QStringList{"Connect 2clicked() (qwxButton) to outline", "Connect 2clicked() (qwxBitmapButton) to picture",
                     "Connect 2clicked() (qwxButton) to wxID_CANCEL", "Connect 2clicked() (qwxButton) to wxID_OK"}));

    ItemWindow window(m_ui->host.root());
    clickItem(m_ui->item("wxID_OK"));
    clickItem(m_ui->item("outline"));
    emitSignal("picture", "clicked");
    QCOMPARE(heard, (QStringList{"id:wxID_OK", "any:wxID_OK", "name:outline", "any:outline", "any:picture"}));

    list().resetCallbacks();
    clickItem(m_ui->item("wxID_OK"));
    QCOMPARE(heard.size(), 5);
}

void tst_Connections::refusals_logAndBindNothing_data()
{
    QTest::addColumn<Connect>("connect");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QStringList>("criticals");

    const auto row = [](const char* name, const Connect& connect, const QStringList& warnings,
                        const QStringList& criticals = {}) { QTest::newRow(name) << connect << warnings << criticals; };
    row("no root", [](TestHost& h, const auto& f) {
            h.setRoot(nullptr);
            h.list().connectToClickEvent("wxID_OK", f);
        }, {"(wxID_OK) Unable to connect to event: no child root object"});
    row("no wrapper", [](TestHost& h, const auto& f) { h.list().connectToClickEvent("ghost", f); },
        {"(ghost) Did not find wrapper component"}, {"Unable to find window object 'ghost'"});
    row("wrapper without item", [](TestHost& h, const auto& f) { h.list().connectToClickEvent("Host", f); },
        {"(Host) Did not find qml component"});
    row("unknown id", [](TestHost& h, const auto& f) { h.list().connectToClickEvent(12345, f); },
        {"Not handling connecting to click event for ID '12345'"});
    row("wildcard without match", [](TestHost& h, const auto& f) { h.list().connectToTextAcceptedEvent("wxID_ANY", f); },
        {"Did not find an object of type 'qwxTextCtrl,qwxComboBox' to connect to 2accepted()"});
}

void tst_Connections::refusals_logAndBindNothing()
{
    QFETCH(Connect, connect);
    QFETCH(QStringList, warnings);
    QFETCH(QStringList, criticals);

    int calls = 0;
    TestHost host(m_ui->host.root(), QStringLiteral("Host"));
    host.populate();
    LogRecorder log;
    expectMessages(QtCriticalMsg, criticals);
    expectMessages(QtWarningMsg, warnings);
    connect(host, [&calls](qwxCommandEvent&) { ++calls; });
    QCOMPARE(log.lines(), criticals + warnings);

    for (const char* button : {"wxID_OK", "wxID_CANCEL", "outline"})
        emitSignal(button, "clicked");
    QCOMPARE(calls, 0);
}

void tst_Connections::emptyHandler_throwsOnlyWhenTheSignalArrives()
{
    list().connectToClickEvent("wxID_OK", EventHandler<qwxCommandEvent>());
    QVERIFY_EXCEPTION_THROWN(emitSignal("wxID_OK", "clicked"), std::bad_function_call);
}

void tst_Connections::signalPaths_reachTheirHandlers_data()
{
    QTest::addColumn<Bind>("bind");
    QTest::addColumn<Raise>("raise");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("key press and release") << Bind([](QmlChildList& list, QStringList& heard) {
        const auto note = [&heard](const char* what) {
            return [&heard, what](qwxKeyEvent& event) { heard.append(QLatin1String(what) + ' ' + describeKey(event)); };
        };
        list.connectToKeyPressedEvent("field", note("pressed"));
        list.connectToKeyReleasedEvent("field", note("released"));
    }) << Raise([](HostedQml& ui) { typeInto(ui, "field", Qt::Key_B); })
       << QStringList{"pressed key 66 'b' shift 0", "released key 66 'b' shift 0"};
    QTest::newRow("context menu") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToContextMenuEvent("field", noting<qwxContextMenuEvent>(heard, "menu"));
    }) << Raise([](HostedQml& ui) { QVERIFY(QMetaObject::invokeMethod(ui.item("field"), "contextMenu")); })
       << QStringList{"menu:field"};
    QTest::newRow("double click") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToLeftDoubleClick(*list.FindWindow("field"), noting<qwxMouseEvent>(heard, "double"));
    }) << Raise([](HostedQml& ui) { QVERIFY(QMetaObject::invokeMethod(ui.item("field"), "doubleClicked")); })
       << QStringList{"double:field"};
    QTest::newRow("size, by width and by height") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToSizeEvent(*list.FindWindow("field"), noting<qwxSizeEvent>(heard, "size"));
    }) << Raise([](HostedQml& ui) {
        ui.item("field")->setProperty("width", 120);
        ui.item("field")->setProperty("height", 50);
    }) << QStringList{"size:field", "size:field"};
    QTest::newRow("radio button") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToRadioButtonEvent("wxID_ANY", noting<qwxCommandEvent>(heard, "radio"));
    }) << Raise([](HostedQml& ui) { clickItem(ui.item("radio")); }) << QStringList{"radio:radio"};
    QTest::newRow("toggle button") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToToggleButtonEvent("wxID_ANY", noting<qwxCommandEvent>(heard, "toggle"));
    }) << Raise([](HostedQml& ui) { ui.item("mode")->setProperty("currentIndex", 1); })
       << QStringList{"toggle:mode"};
    QTest::newRow("menu item, by its string") << Bind([](QmlChildList& list, QStringList& heard) {
        list.connectToMenuEvent("copy", [&heard](qwxCommandEvent& event) { heard.append(qut::toQt(event.GetString())); });
    }) << Raise([](HostedQml& ui) {
        for (const char* id : {"paste", "copy", "copy all"})
            QVERIFY(QMetaObject::invokeMethod(ui.item("menu"), "menuItemTriggered", Q_ARG(QString, QLatin1String(id))));
    }) << QStringList{"copy"};
}

void tst_Connections::signalPaths_reachTheirHandlers()
{
    QFETCH(Bind, bind);
    QFETCH(Raise, raise);
    QFETCH(QStringList, expected);

    HostedQml ui("signals.qml");
    ItemWindow window(ui.host.root());
    QStringList heard;
    bind(ui.host.list(), heard);
    raise(ui);
    QCOMPARE(heard, expected);
}

void tst_Connections::missingSignal_isLoggedAsAConnectionFailure()
{
    int calls = 0;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^QObject::connect: No such signal .*::accepted\\(\\)"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^QObject::connect: .*sender name: .*'outline'"));
    QTest::ignoreMessage(QtWarningMsg, "(outline) Unable to connect 2accepted() to 1onEvent()");
    list().connectToTextAcceptedEvent("outline", [&calls](qwxCommandEvent&) { ++calls; });
    emitSignal("outline", "clicked");
    QCOMPARE(calls, 0);
}

void tst_Connections::repopulate_silencesTheItemsOfDyingWrappers()
{
    // The toggle button's search finds the combo of its name, whose index changes when its wrapper goes.
    HostedQml ui("twins.qml");
    QStringList heard;
    ui.host.list().connectToToggleButtonEvent("wxID_ANY", noting<qwxCommandEvent>(heard, "toggle"));
    ui.item("twin")->setProperty("currentIndex", 1);
    QCOMPARE(heard, QStringList{"toggle:twin"});

    ui.host.populate();
    QCOMPARE(heard, QStringList{"toggle:twin"});
    // The connections went with their wrappers.
    ui.item("twin")->setProperty("currentIndex", 2);
    QCOMPARE(heard, QStringList{"toggle:twin"});
}

QTEST_MAIN(tst_Connections)
#include "tst_connections.moc"
