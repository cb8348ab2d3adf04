// GUI tests as an application writes them with CppUnit: application code opens
// the gallery's print dialog modally, and a ModalRunner's action drives it
// through its real QML items.
#include <printdialog.h>
#include <scriptplayer.h>
#include <support/logrecorder.h>
#include <support/paths.h>

#include <dlgbridge/hosting/modalrunner.h>

#include <quickhost/quickhost.h>

#include <QApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <wx/defs.h>

#include <cppunit/TestFixture.h>
#include <cppunit/extensions/HelperMacros.h>
#include <cppunit/extensions/TestFactoryRegistry.h>
#include <cppunit/ui/text/TestRunner.h>

#include <oda/OdEdCancel.h>
#include <qut/qtconversions.h>

#include <memory>
#include <stdexcept>

using namespace dbr;

namespace {

constexpr int watchdogMs = 5000;

// What the application's print command reports after its dialog.
struct PrintOutcome
{
    int code = 0;
    bool cancelled = false;
    bool shownWhenCancelled = false;
    QString title;
    int copies = 0;
    bool checked = false;
};

// Application code: a command that prints with what the user chose, and
// treats a cancel as the user's.
PrintOutcome printFromApplication()
{
    PrintDialog dialog;
    dialog.load();
    PrintOutcome outcome;
    try {
        outcome.code = ShowModal(&dialog);
    } catch (const OdEdCancel&) {
        outcome.cancelled = true;
        outcome.shownWhenCancelled = dialog.IsShown() || static_cast<QQuickItem*>(dialog.root())->window()->isVisible();
    }
    outcome.title = qut::toQt(dialog.title);
    outcome.copies = dialog.copies;
    outcome.checked = dialog.checked;
    return outcome;
}

ScriptPlayer userOn(qwxDialog* dialog)
{
    return ScriptPlayer([dialog] { return dialog->root(); }, QString());
}

// Cancels the modal dialog shown on top, for runs that no action drives.
void cancelModalDialogLater()
{
    QTimer::singleShot(watchdogMs / 10, [] {
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            auto* quickWindow = qobject_cast<QQuickWindow*>(window);
            if (quickWindow && quickWindow->isVisible() && quickWindow->modality() != Qt::NonModal)
                quickWindow->close();
        }
    });
}

} // namespace

class PrintDialogGuiTest : public CppUnit::TestFixture
{
    CPPUNIT_TEST_SUITE(PrintDialogGuiTest);
    CPPUNIT_TEST(okAction_returnsOkWithTheChosenValues);
    CPPUNIT_TEST(failedCheck_cancelsTheApplicationAndSurfacesFromTheRunner);
    CPPUNIT_TEST(withoutGuiTestingOrRunner_theDialogRunsModally);
    CPPUNIT_TEST(otherExceptions_passThroughAndLeaveTheDialogShown);
    CPPUNIT_TEST(emptyAction_throwsBadFunctionCall);
    CPPUNIT_TEST(copies_carryTheFailureButAreNeverActive);
    CPPUNIT_TEST(testResources_areFoundUnderTheDrawingsFolder);
    CPPUNIT_TEST_SUITE_END();

public:
    void setUp() override { dlgSetGuiTesting(true); }
    void tearDown() override { dlgSetGuiTesting(false); }

    void okAction_returnsOkWithTheChosenValues()
    {
        PrintOutcome outcome;
        {
            ModalRunner runner([](qwxDialog* dialog) {
                ScriptPlayer user = userOn(dialog);
                user.click("agree");
                user.invoke("plotTitle", "insert", Q_ARG(int, 0), Q_ARG(QString, QStringLiteral("Roof plan")));
                user.setOn("copies", "value", 4);
                user.click("wxID_OK");
            });
            outcome = printFromApplication();
        }
        CPPUNIT_ASSERT_EQUAL(int(wxID_OK), outcome.code);
        CPPUNIT_ASSERT(!outcome.cancelled);
        CPPUNIT_ASSERT_EQUAL(QStringLiteral("Roof plan").toStdString(), outcome.title.toStdString());
        CPPUNIT_ASSERT_EQUAL(4, outcome.copies);
        CPPUNIT_ASSERT(outcome.checked);
    }

    void failedCheck_cancelsTheApplicationAndSurfacesFromTheRunner()
    {
        PrintOutcome outcome;
        std::string surfaced;
        try {
            ModalRunner runner([](qwxDialog* dialog) {
                CPPUNIT_ASSERT_MESSAGE("the dialog opens with the layout checked",
                                       userOn(dialog).item("agree")->property("checked").toBool());
            });
            outcome = printFromApplication();
        } catch (const CppUnit::Exception& failure) {
            surfaced = failure.what();
        }
        CPPUNIT_ASSERT(surfaced.find("the dialog opens with the layout checked") != std::string::npos);
        CPPUNIT_ASSERT(outcome.cancelled);
        CPPUNIT_ASSERT(!outcome.shownWhenCancelled);
        CPPUNIT_ASSERT(!ModalRunner::getActiveRunner());
    }

    void withoutGuiTestingOrRunner_theDialogRunsModally()
    {
        bool acted = false;
        {
            ModalRunner runner([&acted](qwxDialog*) { acted = true; });
            dlgSetGuiTesting(false);
            cancelModalDialogLater();
            CPPUNIT_ASSERT_EQUAL(int(wxID_CANCEL), printFromApplication().code);
        }
        dlgSetGuiTesting(true);
        cancelModalDialogLater();
        CPPUNIT_ASSERT_EQUAL(int(wxID_CANCEL), printFromApplication().code);
        CPPUNIT_ASSERT(!acted);
    }

    void otherExceptions_passThroughAndLeaveTheDialogShown()
    {
        PrintDialog dialog;
        dialog.load();
        ModalRunner runner([](qwxDialog*) { throw std::runtime_error("not a test failure"); });
        CPPUNIT_ASSERT_THROW(ShowModal(&dialog), std::runtime_error);
        CPPUNIT_ASSERT(dialog.IsShown());
        CPPUNIT_ASSERT(static_cast<QQuickItem*>(dialog.root())->window()->isVisible());
    }

    void emptyAction_throwsBadFunctionCall()
    {
        PrintDialog dialog;
        dialog.load();
        ModalRunner runner(nullptr);
        CPPUNIT_ASSERT_THROW(ShowModal(&dialog), std::bad_function_call);
    }

    void copies_carryTheFailureButAreNeverActive()
    {
        auto* original = new ModalRunner([](qwxDialog*) {});
        original->setException(new CppUnit::Exception(CppUnit::Message("kept")));
        auto* copy = new ModalRunner(*original);
        CPPUNIT_ASSERT_EQUAL(original, ModalRunner::getActiveRunner());
        CPPUNIT_ASSERT_THROW(delete copy, CppUnit::Exception);
        CPPUNIT_ASSERT(!ModalRunner::getActiveRunner());
        CPPUNIT_ASSERT_THROW(delete original, CppUnit::Exception);
    }

    void testResources_areFoundUnderTheDrawingsFolder()
    {
        qputenv("DRAWINGS_PATH", "/srv/drawings/");
        CPPUNIT_ASSERT(OdString("/srv/drawings/Qt/print/a3.dwg") == getFullQtTestResourcesPath("print\\a3.dwg"));

        qunsetenv("DRAWINGS_PATH");
        test::LogRecorder log;
        CPPUNIT_ASSERT(OdString("/Qt/print/a3.dwg") == getFullQtTestResourcesPath("print/a3.dwg"));
        CPPUNIT_ASSERT(log.contains(
            QStringLiteral("Wasn't able to find the local drawings folder: DRAWINGS_PATH env var wasn't set.")));
    }
};

CPPUNIT_TEST_SUITE_REGISTRATION(PrintDialogGuiTest);

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    quickhost::QuickHost host({test::qmlImportDir()});
    CppUnit::TextUi::TestRunner runner;
    runner.addTest(CppUnit::TestFactoryRegistry::getRegistry().makeTest());
    return runner.run() ? 0 : 1;
}
