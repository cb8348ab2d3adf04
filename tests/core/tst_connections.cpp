#include <dlgbridge/core/qmlchildlist.h>

#include <QLoggingCategory>
#include <QTest>

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

} // namespace

Q_DECLARE_METATYPE(Connect)

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
    list().connectToClickEvent(5100, note("id"));
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

QTEST_MAIN(tst_Connections)
#include "tst_connections.moc"
