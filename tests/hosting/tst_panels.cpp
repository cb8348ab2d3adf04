#include <support/paths.h>
#include <support/qmlfixture.h>
#include <support/testdialog.h>
#include <support/testhost.h>

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxdialog.h>
#include <dlgbridge/hosting/qwxexistingpanel.h>
#include <dlgbridge/hosting/qwxpanel.h>

#include <quickhost/quickhost.h>
#include <quickhost/quickpanel.h>

#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>

using namespace dbr;
using namespace dbr::test;

namespace {

// An existing panel as application code writes one: it binds in doEventTableInit.
class ToolPanel : public qwxExistingPanel
{
public:
    QStringList journal;
    int clicks = 0;

    void resyncToUI() override { journal.append(QStringLiteral("resync")); }
    void onCreateWindow() override { journal.append(QStringLiteral("createWindow")); }
    void doEventTableInit() override
    {
        journal.append(QStringLiteral("eventTable"));
        qmlChildren(UseParentList)->connectToClickEvent("go", [this](qwxCommandEvent&) { ++clicks; });
    }
};

void emitClicked(QObject* item)
{
    QVERIFY(item);
    QVERIFY(QMetaObject::invokeMethod(item, "clicked"));
}

} // namespace

class tst_Panels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelsOfADialog_areWrappersOfTheDialogsList();
    void init_findsTheItemOnceOrSaysWhy();
    void reparent_movesTheItemAndThenTheWrapper();
    void existingPanel_bindsAndRebindsAfterAReload();
    void reparentIntoItsOwnSubtree_isRefusedByItemAndWrapper();
    void vanishedItems_readAsNoRoot();

private:
    QmlFixture m_qml;
};

void tst_Panels::panelsOfADialog_areWrappersOfTheDialogsList()
{
    quickhost::QuickHost host({qmlImportDir()});
    TestDialog dialog;
    QVERIFY(wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("dialog.qml")), NotResizable, {}, nullptr));
    dialog.Show();
    QTRY_VERIFY(dialog.journal.contains(QStringLiteral("createDialog")));

    for (const char* name : {"details", "PANEL_side"}) {
        auto* panel = dynamic_cast<qwxPanel*>(dialog.FindWindow(name));
        QVERIFY2(panel, name);
        QCOMPARE(panel->root(), dialog.item(name));
        QCOMPARE(panel->qmlChildren(qwxWindow::UseParentList), dialog.qmlChildren(qwxWindow::OwnListOnly));
        QVERIFY(!panel->qmlChildren(qwxWindow::OwnListOnly));
    }
    // Controls inside panels belong to the dialog.
    QCOMPARE(dialog.FindWindow("count")->GetParent(), static_cast<qwxWindow*>(&dialog));
    QVERIFY(dialog.FindWindow("more"));
}

void tst_Panels::init_findsTheItemOnceOrSaysWhy()
{
    TestHost host;
    QTest::ignoreMessage(QtCriticalMsg, "Unable to create panel (details): invalid parent root");
    qwxPanel panel("details", host);
    QVERIFY(!panel.root());

    host.setRoot(m_qml.loadFile(QStringLiteral("dialog.qml")));
    QTest::ignoreMessage(QtCriticalMsg, "Unable to create panel: panel root 'nothing' not found");
    QVERIFY(!panel.init(QStringLiteral("nothing")));
    QVERIFY(wut::loadPanel(&panel, QStringLiteral("details")));
    QObject* details = panel.root();
    QCOMPARE(details->objectName(), QStringLiteral("details"));

    // A second init succeeds without searching again.
    QTest::ignoreMessage(QtWarningMsg, "Panel 'details' is already initialized");
    QVERIFY(panel.init(QStringLiteral("PANEL_side")));
    QCOMPARE(panel.root(), details);

    QTest::ignoreMessage(QtCriticalMsg, "Attempt to load empty panel \"x\"");
    QVERIFY(!wut::loadPanel(nullptr, QStringLiteral("x")));
}

void tst_Panels::reparent_movesTheItemAndThenTheWrapper()
{
    TestHost host(m_qml.loadFile(QStringLiteral("dialog.qml")));
    qwxPanel details("details", host);
    qwxPanel side("PANEL_side", host);
    auto* sideItem = qobject_cast<QQuickItem*>(side.root());

    // Into a panel built on a component with a content item: the children go there.
    side.Reparent(details);
    QCOMPARE(side.GetParent(), static_cast<qwxWindow*>(&details));
    QCOMPARE(QVariant::fromValue<QObject*>(sideItem->parentItem()), details.root()->property("contentItem"));

    // Into a window that isn't a panel: its own item.
    side.Reparent(host);
    QCOMPARE(sideItem->parentItem(), host.root());

    // A panel without item can't move, so it keeps its parent.
    qwxPanel lost(host);
    QTest::ignoreMessage(QtWarningMsg, "('', type: 'qwxPanel') Unable to set qml property parent: no root object");
    lost.Reparent(details);
    QCOMPARE(lost.GetParent(), static_cast<qwxWindow*>(&host));
}

void tst_Panels::existingPanel_bindsAndRebindsAfterAReload()
{
    quickhost::QuickHost host({qmlImportDir()});
    ToolPanel panel;
    QVERIFY(!panel.root());
    QTest::ignoreMessage(QtCriticalMsg, "Unable to set up panel: no root object found");
    panel.loadContent();
    QVERIFY(panel.journal.isEmpty());

    quickhost::QuickPanel application(host.engine(), testDataUrl(QStringLiteral("toolpanel.qml")));
    QObject::connect(&application, &quickhost::QuickPanel::reloaded, [&panel] { panel.onQmlReloaded(); });
    panel.setPanel(&application);
    panel.loadContent();
    qwxWindow* go = panel.FindWindow("go");
    QVERIFY(go);
    emitClicked(application.root()->findChild<QObject*>(QStringLiteral("go")));
    QCOMPARE(panel.clicks, 1);

    panel.journal.clear();
    application.reload();
    // The wrappers stay and find the new items; only the new connection hears.
    QCOMPARE(panel.journal, (QStringList{"resync", "eventTable"}));
    QCOMPARE(panel.FindWindow("go"), go);
    emitClicked(application.root()->findChild<QObject*>(QStringLiteral("go")));
    QCOMPARE(panel.clicks, 2);
}

void tst_Panels::reparentIntoItsOwnSubtree_isRefusedByItemAndWrapper()
{
    TestHost host(m_qml.loadFile(QStringLiteral("dialog.qml")));
    host.populate();
    qwxPanel details("details", host);
    qwxPanel side("PANEL_side", host);
    side.Reparent(details);

    // Into a panel it holds: refused before the item is touched.
    QTest::ignoreMessage(QtWarningMsg, "(details) Unable to move the panel into 'PANEL_side', which it holds");
    details.Reparent(side);
    QCOMPARE(details.GetParent(), static_cast<qwxWindow*>(&host));
    QVERIFY(side.FindWindow("agree"));

    // Into a control inside it: the item refuses, and so the wrapper stays where it is.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^QQuickItem::setParentItem: Parent .* is already part of"));
    QTest::ignoreMessage(QtWarningMsg, "(PANEL_side) The item refused 'more' as its parent");
    side.Reparent(*host.FindWindow("more"));
    QCOMPARE(side.GetParent(), static_cast<qwxWindow*>(&details));
}

void tst_Panels::vanishedItems_readAsNoRoot()
{
    QObject* root = m_qml.loadData(R"(
        import QtQuick 2.15
        Item {
            Loader { objectName: "tools"; sourceComponent: Item { objectName: "PANEL_tools" } }
            Loader { objectName: "page"; sourceComponent: Item { objectName: "page" } }
        })");
    const auto loader = [root](const char* name) { return root->findChild<QObject*>(QLatin1String(name)); };
    TestHost host(root);
    qwxPanel panel("PANEL_tools", host);
    QVERIFY(panel.root());
    qwxDialog dialog(qobject_cast<QQuickItem*>(loader("page")->property("item").value<QObject*>()));
    QVERIFY(dialog.root());

    for (const char* name : {"tools", "page"})
        loader(name)->setProperty("active", false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::ignoreMessage(QtWarningMsg,
                         "('PANEL_tools', type: 'qwxPanel') Unable to get qml property visible: no root object");
    QVERIFY(!panel.IsShown());
    QTest::ignoreMessage(QtWarningMsg, "('', type: 'qwxDialog') Unable to get qml property visible: no root object");
    QVERIFY(!dialog.IsShown());
    // Its deferred load finds nothing to load either.
    QTest::ignoreMessage(QtCriticalMsg, "Unable to set up dialog: no root object found");
    QTest::qWait(1);
}

QTEST_MAIN(tst_Panels)
#include "tst_panels.moc"
