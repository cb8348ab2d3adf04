#include <support/itemwindow.h>
#include <support/paths.h>
#include <support/qmlfixture.h>
#include <support/testdialog.h>
#include <support/testvalidator.h>

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxdialogcontroller.h>

#include <quickhost/quickdialog.h>
#include <quickhost/quickhost.h>

#include <QPointer>
#include <QQuickItem>
#include <QTest>

#include <wx/defs.h>

#include <functional>

using namespace dbr;
using namespace dbr::test;

namespace {

// An application whose dialogs never come into being.
class NoDialogController : public quickhost::QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;
    std::unique_ptr<IWxQtDialog> createDialog(const QUrl&, BaseDialogController*, EResizable, DialogOptions,
                                              wxWindow*) override
    {
        return nullptr;
    }
};

// An application that keeps the last dialog it built, so that a test can replace its QML.
class KeepingController : public quickhost::QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;
    std::unique_ptr<IWxQtDialog> createDialog(const QUrl& url, BaseDialogController* controller,
                                              EResizable resizable, DialogOptions options, wxWindow* parent) override
    {
        std::unique_ptr<IWxQtDialog> made = QuickGuiController::createDialog(url, controller, resizable, options, parent);
        last = dynamic_cast<quickhost::QuickDialog*>(made.get());
        return made;
    }

    quickhost::QuickDialog* last = nullptr;
};

bool loadDialog(qwxDialog& dialog)
{
    return wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("dialog.qml")), NotResizable, {}, nullptr);
}

} // namespace

class tst_QwxDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<quickhost::QuickHost>(QStringList{qmlImportDir()}); }
    void cleanup() { m_host.reset(); }
    void modalOk_endsWith5100AfterTheDialogWasLoadedAndBound();
    void cancel_transfersNothing();
    void apply_isHeardAndLeavesTheDialogOpen();
    void withoutInternalDialog_everyForwarderAnswersNeutrally();
    void init_isRefusedASecondTimeOrWithoutApplicationOrController();
    void showTwice_loadsTwiceUnlessTheFlagIsSet();
    void destroyedBeforeTheLoad_neverLoads();
    void hostReload_rebindsOnTheNewItems();
    void dialogOnExistingItem_loadsWithoutTheApplication();
    void controller_decidesByReturnCode_data();
    void controller_decidesByReturnCode();

private:
    // Binds a validator to the spin box, as dialog code does.
    std::function<void(QmlChildList&)> validateCount()
    {
        m_validators = {};
        return [this](QmlChildList& list) { list.FindWindow("count")->SetValidator(JournalValidator(m_validators)); };
    }

    std::unique_ptr<quickhost::QuickHost> m_host;
    ValidatorJournal m_validators;
};

void tst_QwxDialog::modalOk_endsWith5100AfterTheDialogWasLoadedAndBound()
{
    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    QList<bool> agreed;
    dialog.bind = [&, validate = validateCount()](QmlChildList& list) {
        list.connectToCheckBoxEvent("agree", [&](qwxCommandEvent& event) { agreed.append(event.IsChecked()); });
        validate(list);
    };
    dialog.script = [](TestDialog& shown) {
        QVERIFY(shown.IsModal());
        QVERIFY(shown.waitForExposed());
        QVERIFY(shown.isReady());
        clickItem(shown.item("agree"));
        clickItem(shown.item("wxID_OK"));
    };

    QCOMPARE(ShowModal(&dialog), wxID_OK);
    QCOMPARE(dialog.GetReturnCode(), wxID_OK);
    QVERIFY(!dialog.IsModal());
    QCOMPARE(agreed, QList<bool>{true});
    QCOMPARE(m_validators.transfers, (QStringList{"to:count", "from:count"}));
    QCOMPARE(dialog.journal, (QStringList{"resync", "eventTable", "createWindow", "createDialog", "beforeOk"}));
}

void tst_QwxDialog::cancel_transfersNothing()
{
    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    dialog.bind = validateCount();
    dialog.script = [](TestDialog& shown) { clickItem(shown.item("wxID_CANCEL")); };

    QCOMPARE(ShowModal(&dialog), wxID_CANCEL);
    QCOMPARE(dialog.journal.last(), QStringLiteral("beforeCancel"));
    QCOMPARE(m_validators.transfers, QStringList{"to:count"});
}

void tst_QwxDialog::apply_isHeardAndLeavesTheDialogOpen()
{
    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    int applied = 0;
    dialog.bind = [&](QmlChildList& list) {
        list.connectToDlgResult(wxID_APPLY, [&](qwxCommandEvent& event) {
            QCOMPARE(event.GetEventObject(), static_cast<qwxWindow*>(&dialog));
            ++applied;
        });
    };
    dialog.script = [&](TestDialog& shown) {
        clickItem(shown.item("wxID_APPLY"));
        QVERIFY(shown.IsModal());
        // Ending by code asks no hook.
        EndModal(&shown, wxID_YES);
    };

    QCOMPARE(ShowModal(&dialog), wxID_YES);
    QCOMPARE(applied, 1);
    QVERIFY(!dialog.journal.contains(QStringLiteral("beforeOk")));
}

void tst_QwxDialog::withoutInternalDialog_everyForwarderAnswersNeutrally()
{
    NoDialogController nothing(m_host->engine());
    oa::OaApp application(&nothing, nullptr);
    oa::OaApp::s_app = &application;

    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    QTest::ignoreMessage(QtCriticalMsg, "Unable to show modal dialog: internal dialog not found");
    QCOMPARE(ShowModal(&dialog), wxID_CANCEL);
    QTest::ignoreMessage(QtCriticalMsg, "Unable to show dialog: internal dialog not found");
    dialog.Show();
    QTest::ignoreMessage(QtCriticalMsg, "Unable to end modal dialog: internal dialog not found");
    dialog.EndModal(wxID_OK);
    QTest::ignoreMessage(QtCriticalMsg, "Unable to hide dialog: internal dialog not found");
    EndModal(&dialog, wxID_OK);
    // Hides through the root, of which there is none: no message of its own.
    QTest::ignoreMessage(QtWarningMsg, "('', type: 'qwxDialog') Unable to set qml property visible: no root object");
    dialog.EndDialog(wxID_OK);
    dialog.SetTitle("ignored");

    QCOMPARE(dialog.GetReturnCode(), -1);
    QVERIFY(!dialog.waitForExposed());
    QVERIFY(dialog.journal.isEmpty());
}

void tst_QwxDialog::init_isRefusedASecondTimeOrWithoutApplicationOrController()
{
    QVERIFY(!wut::doLoadDialog(nullptr, nullptr, QUrl(), NotResizable, {}, nullptr));

    TestDialog dialog;
    QTest::ignoreMessage(QtCriticalMsg, "qwx dialog requires a controller");
    QVERIFY(!dialog.init(QUrl(), NotResizable, {}, nullptr, nullptr));

    auto first = std::make_unique<QwxDialogController>(dialog);
    QPointer<QObject> firstController = first.get();
    QVERIFY(dialog.init(testDataUrl(QStringLiteral("dialog.qml")), NotResizable, {}, std::move(first), nullptr));
    auto second = std::make_unique<QwxDialogController>(dialog);
    QPointer<QObject> secondController = second.get();
    QTest::ignoreMessage(QtCriticalMsg, "Initializing a qwx dialog twice is not allowed");
    QVERIFY(!wut::doLoadDialog(&dialog, nullptr, QUrl(), NotResizable, {}, std::move(second)));
    QVERIFY(firstController);
    QVERIFY(!secondController);

    TestDialog orphan;
    oa::OaApp::s_app = nullptr;
    QTest::ignoreMessage(QtCriticalMsg, "qwx dialog requires an application object");
    QVERIFY(!loadDialog(orphan));
}

void tst_QwxDialog::showTwice_loadsTwiceUnlessTheFlagIsSet()
{
    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    dialog.setInitDialogFunctor([&](qwxInitDialogEvent&) { dialog.journal.append(QStringLiteral("initDialog")); });
    dialog.Show();
    dialog.Show();
    QTRY_COMPARE(dialog.journal.count(QStringLiteral("initDialog")), 2);
    QCOMPARE(dialog.journal.count(QStringLiteral("createDialog")), 2);

    dialog.journal.clear();
    dialog.markEventTableLoaded = true;
    dialog.Show();
    QTRY_COMPARE(dialog.journal.count(QStringLiteral("initDialog")), 1);
    dialog.Show();
    QTRY_COMPARE(dialog.journal.count(QStringLiteral("initDialog")), 2);
    // Only the first of these loads did work.
    QCOMPARE(dialog.journal.count(QStringLiteral("createDialog")), 1);

    dialog.reloadContent();
    QCOMPARE(dialog.journal.last(), QStringLiteral("reloadContent"));
    QTRY_COMPARE(dialog.journal.count(QStringLiteral("createDialog")), 2);
}

void tst_QwxDialog::hostReload_rebindsOnTheNewItems()
{
    KeepingController application(m_host->engine());
    oa::OaApp app(&application, nullptr);
    oa::OaApp::s_app = &app;
    TestDialog dialog;
    QVERIFY(loadDialog(dialog));
    int clicks = 0;
    dialog.bind = [&clicks](QmlChildList& list) {
        list.connectToClickEvent(wxID_APPLY, [&clicks](qwxCommandEvent&) { ++clicks; });
    };
    dialog.Show();
    QTRY_VERIFY(dialog.journal.contains(QStringLiteral("createDialog")));
    QVERIFY(QMetaObject::invokeMethod(dialog.item("wxID_APPLY"), "clicked"));
    QCOMPARE(clicks, 1);

    // The application replaces the QML: every wrapper is made and bound anew, over the new items only.
    dialog.journal.clear();
    QPointer<QObject> formerItem = dialog.item("wxID_APPLY");
    application.last->reload();
    QTRY_COMPARE(dialog.journal, (QStringList{"reloadContent", "resync", "eventTable", "createWindow", "createDialog"}));
    QVERIFY(formerItem.isNull());
    QVERIFY(QMetaObject::invokeMethod(dialog.item("wxID_APPLY"), "clicked"));
    QCOMPARE(clicks, 2);
}

void tst_QwxDialog::destroyedBeforeTheLoad_neverLoads()
{
    bool bound = false;
    auto dialog = std::make_unique<TestDialog>();
    QVERIFY(loadDialog(*dialog));
    dialog->bind = [&](QmlChildList&) { bound = true; };
    dialog->Show();
    dialog.reset();
    QTest::qWait(20);
    QVERIFY(!bound);
}

void tst_QwxDialog::dialogOnExistingItem_loadsWithoutTheApplication()
{
    oa::OaApp application(nullptr, nullptr);
    oa::OaApp::s_app = &application;
    QmlFixture qml;
    auto* item = qobject_cast<QQuickItem*>(qml.loadFile(QStringLiteral("dialog.qml")));
    QVERIFY(item);

    qwxDialog dialog(item);
    qwxWindow* initialisedWith = nullptr;
    dialog.setInitDialogFunctor([&](qwxInitDialogEvent& event) { initialisedWith = event.GetEventObject(); });
    QTest::ignoreMessage(QtCriticalMsg, "Initializing a qwx dialog twice is not allowed");
    QVERIFY(!loadDialog(dialog));
    QCOMPARE(dialog.engine(), &qml.engine());
    QCOMPARE(dialog.ShowModal(), 0);
    QVERIFY(!dialog.IsModal());
    QTRY_COMPARE(initialisedWith, static_cast<qwxWindow*>(&dialog));
    QVERIFY(dialog.FindWindow("agree"));

    dialog.EndDialog(wxID_OK);
    QVERIFY(!item->isVisible());
}

void tst_QwxDialog::controller_decidesByReturnCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("agreed");
    QTest::addColumn<QStringList>("hooks");

    QTest::newRow("ok, vetoed") << int(wxID_OK) << false << QStringList{"beforeOk"};
    QTest::newRow("cancel") << int(wxID_CANCEL) << true << QStringList{"beforeCancel"};
    QTest::newRow("yes") << int(wxID_YES) << true << QStringList{};
}

void tst_QwxDialog::controller_decidesByReturnCode()
{
    QFETCH(int, code);
    QFETCH(bool, agreed);
    QFETCH(QStringList, hooks);

    BaseDialogController base;
    QVERIFY(base.beforeEndModal(code));

    TestDialog dialog;
    dialog.okVetoes = 2;
    QwxDialogController controller(dialog);
    QCOMPARE(controller.beforeEndModal(code), agreed);
    QCOMPARE(controller.beforeEndNonModal(code), agreed);
    QCOMPARE(dialog.journal, hooks + hooks);
}

QTEST_MAIN(tst_QwxDialog)
#include "tst_qwxdialog.moc"
