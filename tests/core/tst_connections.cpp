#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QLoggingCategory>
#include <QTest>

#include <qut/qtconversions.h>

#include <stdexcept>

#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/messages.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// Stands in for a wrapper class that has not been written yet, under its name.
template<const char* Name>
class NamedControl : public TestControl
{
public:
    using TestControl::TestControl;
    QString typeName() const override { return QLatin1String(Name); }
};
constexpr char menuTypeName[] = "qwxMenu";

enum class Refusal { EmptyName, NoRoot, NoWrapper, NoItem, UnknownId, NoWildcardMatch, UnknownResult };

} // namespace

Q_DECLARE_METATYPE(Refusal)

class tst_Connections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void click_reachesHandlersByNameIdAndWildcard();
    void twoConnections_runInConnectionOrderUntilReset();
    void checkBox_eventCarriesTheStateAfterTheClick();
    void valueEvents_carryTheSignalsValue();
    void plainEvents_nameTheirSource();
    void dialogResult_isHeardOnTheRoot();
    void menuEvent_filtersByItemString();
    void refusals_logAndBindNothing_data();
    void refusals_logAndBindNothing();
    void emptyHandler_throwsOnlyWhenTheSignalArrives();

private:
    QObject* item(const char* name) const;
    void emitSignal(const char* name, const char* signal);

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
};

void tst_Connections::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("arvela.qt.dlgconv.*.debug=true"));
}

void tst_Connections::init()
{
    m_qml = std::make_unique<QmlFixture>();
    m_host = std::make_unique<TestHost>(m_qml->loadFile(QStringLiteral("controls.qml")));
    QVERIFY(m_host->root());
    m_host->populate();
}

void tst_Connections::cleanup()
{
    m_host.reset();
    m_qml.reset();
}

QObject* tst_Connections::item(const char* name) const
{
    return m_host->root()->findChild<QObject*>(QLatin1String(name));
}

void tst_Connections::emitSignal(const char* name, const char* signal)
{
    QVERIFY(QMetaObject::invokeMethod(item(name), signal));
}

void tst_Connections::click_reachesHandlersByNameIdAndWildcard()
{
    QStringList heard;
    auto note = [&heard](const char* how) {
        return [&heard, how](qwxCommandEvent& event) { heard.append(how + (':' + qut::toQt(event.GetId()))); };
    };
    QmlChildList& list = m_host->list();

    LogRecorder log;
    list.connectToClickEvent("outline", note("name"));
    list.connectToClickEvent(5100, note("id"));
    list.connectToClickEvent(-1, note("any"));
    // The wildcard takes buttons and bitmap buttons, in key order, and nothing else.
    QCOMPARE(
        log.lines(),
        (QStringList{"Connect 2clicked() (qwxButton) to outline", "Connect 2clicked() (qwxBitmapButton) to picture",
                     "Connect 2clicked() (qwxButton) to wxID_CANCEL", "Connect 2clicked() (qwxButton) to wxID_OK"}));

    ItemWindow window(m_host->root());
    window.click(item("wxID_OK"));
    window.click(item("outline"));
    emitSignal("picture", "clicked");
    QCOMPARE(heard, (QStringList{"id:wxID_OK", "any:wxID_OK", "name:outline", "any:outline", "any:picture"}));
}

void tst_Connections::twoConnections_runInConnectionOrderUntilReset()
{
    QStringList heard;
    QmlChildList& list = m_host->list();
    list.connectToClickEvent("wxID_CANCEL", [&](qwxCommandEvent&) { heard.append("first"); });
    list.connectToClickEvent("wxID_CANCEL", [&](qwxCommandEvent&) { heard.append("second"); });
    emitSignal("wxID_CANCEL", "clicked");
    QCOMPARE(heard, (QStringList{"first", "second"}));

    list.resetCallbacks();
    emitSignal("wxID_CANCEL", "clicked");
    QCOMPARE(heard.size(), 2);
}

void tst_Connections::checkBox_eventCarriesTheStateAfterTheClick()
{
    QList<bool> states;
    m_host->list().connectToCheckBoxEvent("check", [&](qwxCommandEvent& event) { states.append(event.IsChecked()); });

    ItemWindow window(m_host->root());
    window.click(item("check"));
    window.click(item("check"));
    QCOMPARE(states, (QList<bool>{true, false}));
    QCOMPARE(m_host->list().child<qwxCheckBox>("check")->GetValue(), false);
}

void tst_Connections::valueEvents_carryTheSignalsValue()
{
    QObject* pages = m_qml->createChild("import QtQuick 2.15\nItem { objectName: \"pages\"; property string qmlType: "
                                        "\"Pages\"; signal currentChanged(int index) }",
                                        *m_host->root());
    m_host->setCustomTypes({{QStringLiteral("Pages"), factoryOf<TestControl>()}});
    m_host->populate();
    QVERIFY(pages);

    QList<int> selections;
    int toggles = 0;
    int radios = 0;
    QmlChildList& list = m_host->list();
    list.connectToNotebookPageChangedEvent("pages",
                                           [&](qwxCommandEvent& event) { selections.append(event.GetSelection()); });
    list.connectToToggleButtonEvent("mode", [&](qwxCommandEvent&) { ++toggles; });
    list.connectToRadioButtonEvent("wxID_ANY", [&](qwxCommandEvent&) { ++radios; });

    QVERIFY(QMetaObject::invokeMethod(pages, "currentChanged", Q_ARG(int, 2)));
    item("mode")->setProperty("currentIndex", 1);
    ItemWindow window(m_host->root());
    window.click(item("radio"));
    QCOMPARE(selections, QList<int>{2});
    QCOMPARE(toggles, 1);
    QCOMPARE(radios, 1);
}

void tst_Connections::plainEvents_nameTheirSource()
{
    QObject* field = m_qml->createChild(R"(
        import QtQuick 2.15
        Item {
            objectName: "field"; property string qmlType: "Field"
            signal keyPressed(int key, int modifiers, string text)
            signal keyReleased(int key, int modifiers, string text)
        })",
                                        *m_host->root());
    m_host->setCustomTypes({{QStringLiteral("Field"), factoryOf<TestControl>()}});
    m_host->populate();
    QVERIFY(field);
    QmlChildList& list = m_host->list();
    qwxWindow* caption = list.FindWindow("caption");

    QStringList heard;
    list.connectToKeyPressedEvent("field", [&](qwxKeyEvent& event) {
        heard.append(QStringLiteral("press %1 %2").arg(event.getKey()).arg(event.ShiftDown()));
    });
    list.connectToKeyReleasedEvent("field", [&](qwxKeyEvent& event) {
        heard.append(QStringLiteral("release %1 %2").arg(event.getKey()).arg(event.qtEvent().type()));
    });
    list.connectToContextMenuEvent(
        *caption, [&](qwxContextMenuEvent& event) { heard.append("menu " + qut::toQt(event.GetId())); });
    list.connectToSizeEvent(*caption, [&](qwxSizeEvent& event) { heard.append("size " + qut::toQt(event.GetId())); });

    QVERIFY(QMetaObject::invokeMethod(field, "keyPressed", Q_ARG(int, Qt::Key_A), Q_ARG(int, Qt::ShiftModifier),
                                      Q_ARG(QString, "A")));
    QVERIFY(QMetaObject::invokeMethod(field, "keyReleased", Q_ARG(int, Qt::Key_A), Q_ARG(int, 0), Q_ARG(QString, "a")));
    emitSignal("caption", "contextMenu");
    item("caption")->setProperty("width", 123);
    item("caption")->setProperty("height", 45);

    QCOMPARE(heard, (QStringList{"press 65 1", "release 65 6", "menu caption", "size caption", "size caption"}));
}

void tst_Connections::dialogResult_isHeardOnTheRoot()
{
    QList<qwxWindow*> sources;
    m_host->list().connectToDlgResult(5100, [&](qwxCommandEvent& event) { sources.append(event.GetEventObject()); });
    m_host->list().connectToDlgResult(5101, [&](qwxCommandEvent&) { sources.append(nullptr); });
    QVERIFY(QMetaObject::invokeMethod(m_host->root(), "accept"));
    QCOMPARE(sources, QList<qwxWindow*>{m_host.get()});
}

void tst_Connections::menuEvent_filtersByItemString()
{
    for (const char* name : {"fileMenu", "editMenu"}) {
        m_qml->createChild(QByteArray("import QtQuick 2.15\nItem { objectName: \"") + name +
                               "\"; property string qmlType: \"WxConvMenu\"; signal menuItemTriggered(string item) }",
                           *m_host->root());
    }
    m_host->setCustomTypes({{QStringLiteral("WxConvMenu"), factoryOf<NamedControl<menuTypeName>>()}});
    m_host->populate();

    QStringList heard;
    m_host->list().connectToMenuEvent("ID_COPY", [&](qwxCommandEvent& event) {
        heard.append(qut::toQt(event.GetId()) + ' ' + qut::toQt(event.GetString()));
    });
    m_host->list().connectToMenuEvent("ID_NEVER", [&](qwxCommandEvent&) { heard.append("never"); });

    QVERIFY(QMetaObject::invokeMethod(item("editMenu"), "menuItemTriggered", Q_ARG(QString, "ID_COPY")));
    QVERIFY(QMetaObject::invokeMethod(item("fileMenu"), "menuItemTriggered", Q_ARG(QString, "ID_OPEN")));
    QVERIFY(QMetaObject::invokeMethod(item("fileMenu"), "menuItemTriggered", Q_ARG(QString, "ID_COPY")));
    QCOMPARE(heard, (QStringList{"editMenu ID_COPY", "fileMenu ID_COPY"}));
}

void tst_Connections::refusals_logAndBindNothing_data()
{
    QTest::addColumn<Refusal>("refusal");
    QTest::addColumn<QStringList>("criticals");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QStringList>("debugs");

    QTest::newRow("empty name") << Refusal::EmptyName << QStringList{} << QStringList{} << QStringList{};
    QTest::newRow("no root") << Refusal::NoRoot << QStringList{}
                             << QStringList{"(wxID_OK) Unable to connect to event: no child root object"}
                             << QStringList{};
    QTest::newRow("no wrapper") << Refusal::NoWrapper << QStringList{"Unable to find window object 'ghost'"}
                                << QStringList{"(ghost) Did not find wrapper component"} << QStringList{};
    QTest::newRow("wrapper without item")
        << Refusal::NoItem << QStringList{} << QStringList{"(Host) Did not find qml component"} << QStringList{};
    QTest::newRow("unknown id") << Refusal::UnknownId << QStringList{}
                                << QStringList{"Not handling connecting to click event for ID '12345'"}
                                << QStringList{};
    QTest::newRow("wildcard without match")
        << Refusal::NoWildcardMatch << QStringList{}
        << QStringList{"Did not find an object of type 'qwxTextCtrl,qwxComboBox' to connect to 2accepted()"}
        << QStringList{};
    QTest::newRow("unknown dialog result") << Refusal::UnknownResult << QStringList{} << QStringList{}
                                           << QStringList{"Did not find signal name for dialog result 5103"};
}

void tst_Connections::refusals_logAndBindNothing()
{
    QFETCH(Refusal, refusal);
    QFETCH(QStringList, criticals);
    QFETCH(QStringList, warnings);
    QFETCH(QStringList, debugs);

    int calls = 0;
    auto count = [&calls](qwxCommandEvent&) { ++calls; };
    TestHost host(m_host->root(), QStringLiteral("Host"));
    host.populate();
    QmlChildList& list = host.list();

    LogRecorder log;
    expectMessages(QtCriticalMsg, criticals);
    expectMessages(QtWarningMsg, warnings);
    expectMessages(QtDebugMsg, debugs);
    switch (refusal) {
    case Refusal::EmptyName: list.connectToClickEvent("", count); break;
    case Refusal::NoRoot:
        host.setRoot(nullptr);
        list.connectToClickEvent("wxID_OK", count);
        break;
    case Refusal::NoWrapper: list.connectToClickEvent("ghost", count); break;
    case Refusal::NoItem: list.connectToClickEvent("Host", count); break;
    case Refusal::UnknownId: list.connectToClickEvent(12345, count); break;
    case Refusal::NoWildcardMatch: list.connectToTextAcceptedEvent("wxID_ANY", count); break;
    case Refusal::UnknownResult: list.connectToDlgResult(5103, count); break;
    }
    QCOMPARE(log.lines(), criticals + warnings + debugs);

    for (const char* button : {"wxID_OK", "wxID_CANCEL", "outline"})
        emitSignal(button, "clicked");
    QVERIFY(QMetaObject::invokeMethod(m_host->root(), "accept"));
    QCOMPARE(calls, 0);
}

void tst_Connections::emptyHandler_throwsOnlyWhenTheSignalArrives()
{
    m_host->list().connectToClickEvent("wxID_OK", EventHandler<qwxCommandEvent>());
    bool thrown = false;
    try {
        emitSignal("wxID_OK", "clicked");
    } catch (const std::bad_function_call&) {
        thrown = true;
    }
    QVERIFY(thrown);
}

QTEST_MAIN(tst_Connections)
#include "tst_connections.moc"
