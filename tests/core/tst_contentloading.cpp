#include <support/logrecorder.h>
#include <support/qmlfixture.h>
#include <support/testhost.h>

#include <QTest>

using namespace dbr;
using namespace dbr::test;

namespace {

// Every hook of every window of one test, as "hook:name".
QStringList journal;

template<typename Base>
class Journaling : public Base
{
public:
    using Base::Base;

    void resyncToUI() override { note("resync"); }
    void doEventTableInit() override { note("eventTable"); }
    void onCreateWindow() override { note("createWindow"); }

    void setEventTableLoaded(bool loaded) { this->m_eventTableLoaded = loaded; }
    bool eventTableLoaded() const { return this->m_eventTableLoaded; }

private:
    void note(const char* hook) { journal.append(QLatin1String(hook) + ':' + this->wrappedObjectName()); }
};

using JournalHost = Journaling<TestHost>;
using JournalControl = Journaling<TestControl>;

CustomTypes fieldsJournal()
{
    return {{QStringLiteral("Field"), factoryOf<JournalControl>()}};
}

} // namespace

class tst_ContentLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void doLoadContent_runsEachHookOnHostThenChildrenInKeyOrder();
    void doLoadContent_isRefusedWhileTheHostsFlagIsSet();
    void defaultRules_keepTheWalkAndTheConnectionsQuiet();

private:
    QmlFixture m_qml;
};

void tst_ContentLoading::init()
{
    journal.clear();
}

void tst_ContentLoading::doLoadContent_runsEachHookOnHostThenChildrenInKeyOrder()
{
    JournalHost host(m_qml.loadData(R"(
        import QtQuick 2.15
        import Arvela.Components 1.0
        DialogAV {
            showOk: false; showCancel: false
            Field { objectName: "b" }
            Item {
                Field { objectName: "a" }
                Field { objectName: "b" }
            }
        })"));
    QVERIFY(host.root());
    host.setCustomTypes(fieldsJournal());

    QVERIFY(host.doLoadContent(host.list()));
    // Two wrappers of one name get each hook in the order of their vector.
    QCOMPARE(journal, (QStringList{"resync:DialogAV", "resync:a", "resync:b", "resync:b",
                                   "eventTable:DialogAV", "eventTable:a", "eventTable:b", "eventTable:b",
                                   "createWindow:DialogAV", "createWindow:a", "createWindow:b", "createWindow:b"}));
}

void tst_ContentLoading::doLoadContent_isRefusedWhileTheHostsFlagIsSet()
{
    JournalHost host(m_qml.loadFile(QStringLiteral("walk.qml")));
    QVERIFY(host.root());
    host.setCustomTypes(fieldsJournal());
    host.setEventTableLoaded(true);

    QVERIFY(!host.doLoadContent(host.list()));
    QVERIFY(host.list().children().empty());
    QVERIFY(journal.isEmpty());

    host.resetEventTableLoaded();
    QVERIFY(host.doLoadContent(host.list()));
    QVERIFY(host.list().FindWindow("b"));
    QCOMPARE(journal.first(), QStringLiteral("resync:DialogAV"));

    // Clearing the flags reaches every child as well.
    host.setEventTableLoaded(true);
    host.list().forEachChild([](qwxWindow& child) {
        if (auto* control = dynamic_cast<JournalControl*>(&child))
            control->setEventTableLoaded(true);
    });
    host.resetEventTablesLoaded(host.list());
    QVERIFY(!host.eventTableLoaded());
    host.list().forEachChild([](qwxWindow& child) {
        if (auto* control = dynamic_cast<JournalControl*>(&child))
            QVERIFY(!control->eventTableLoaded());
    });
}

void tst_ContentLoading::defaultRules_keepTheWalkAndTheConnectionsQuiet()
{
    TestHost host(m_qml.loadFile(QStringLiteral("controls.qml")));
    LogRecorder log;
    host.populate();
    host.list().connectToClickEvent("wxID_ANY", [](qwxCommandEvent&) {});
    QCOMPARE(log.lines(), QStringList());
}

QTEST_MAIN(tst_ContentLoading)
#include "tst_contentloading.moc"
