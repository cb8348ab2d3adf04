#include <support/itemwindow.h>
#include <support/paths.h>

#include <dlgbridge/hosting/commandcontextdialogcontroller.h>
#include <dlgbridge/hosting/commandcontextdialogsession.h>
#include <dlgbridge/hosting/commandline.h>

#include <quickhost/quickdialog.h>
#include <quickhost/quickhost.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <ca/InputProcessor.h>
#include <qut/qtconversions.h>

#include <functional>

using namespace dbr;
using namespace dbr::test;

namespace {

// The command line as the commands see it: what arrived, in order.
class RecordingInput : public ca::InputProcessor
{
public:
    QStringList received;

    void onChar(wchar_t character) override { received << QStringLiteral("char %1").arg(int(character)); }
    void onCommand(const OdString& word, EInputType type, int flags) override
    {
        received << QStringLiteral("command %1 %2 %3").arg(qut::toQt(word)).arg(int(type)).arg(flags);
    }
};

// The host's controller, but one that builds no dialog, as an application may.
class NoDialogController : public quickhost::QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;
    int attached = 0;
    int detached = 0;

    std::unique_ptr<IWxQtDialog> createDialog(const QUrl&, BaseDialogController*, EResizable, DialogOptions,
                                              wxWindow*) override
    {
        return nullptr;
    }
    void attachContextDialog(IWxQtDialog*) override { ++attached; }
    void detachContextDialog(IWxQtDialog*) override { ++detached; }
};

using Post = std::function<void(QObject*)>;

} // namespace

Q_DECLARE_METATYPE(Post)

class tst_CommandContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = std::make_unique<quickhost::QuickHost>(QStringList{qmlImportDir()});
        // Constructed after the host, so that it is the processor the posts reach.
        m_input = std::make_unique<RecordingInput>();
    }
    void cleanup()
    {
        m_input.reset();
        m_host.reset();
    }

    void posting_reachesTheCommandLineOnlyAfterTheCallerReturns_data()
    {
        QTest::addColumn<Post>("post");
        QTest::addColumn<QStringList>("received");
        const auto option = [](const char* word) {
            return [word](QObject* context) { invokeCommandLineOption(context, word); };
        };
        QTest::newRow("accept is Enter") << Post(acceptCommandLine) << QStringList{"char 13"};
        QTest::newRow("reject is Escape") << Post(rejectCommandLine) << QStringList{"char 27"};
        QTest::newRow("option gets its underscore") << Post(option("Circle")) << QStringList{"command _Circle 16 0"};
        QTest::newRow("option keeps its underscore") << Post(option("_Circle")) << QStringList{"command _Circle 16 0"};
        QTest::newRow("empty option") << Post(option("")) << QStringList{};
        QTest::newRow("close button is Escape")
            << Post([](QObject* context) { static_cast<CommandContextDialogController*>(context)->closeClick(); })
            << QStringList{"char 27"};
    }
    void posting_reachesTheCommandLineOnlyAfterTheCallerReturns()
    {
        QFETCH(Post, post);
        QFETCH(QStringList, received);
        CommandContextDialogController context;
        post(&context);
        QCOMPARE(m_input->received, QStringList());
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_input->received, received);
    }

    void posting_isDroppedWithItsContext()
    {
        auto context = std::make_unique<QObject>();
        acceptCommandLine(context.get());
        invokeCommandLineOption(context.get(), "Circle");
        context.reset();
        acceptCommandLine(nullptr);
        invokeCommandLineOption(nullptr, "Circle");
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_input->received, QStringList());
    }

    void session_showsItsDialogBesideTheCommandLineUntilClosed()
    {
        QQuickWindow commandLine;
        commandLine.setGeometry(100, 100, 400, 200);
        m_host->guiController().setContextDialogAnchor(&commandLine);
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session =
            CommandContextDialogSession::create(m_host->application(), testDataUrl("contextdialog.qml"), controller);

        const auto& attached = m_host->guiController().attachedDialogs();
        QCOMPARE(attached.size(), size_t(1));
        auto* dialog = dynamic_cast<quickhost::QuickDialog*>(attached.front());
        QVERIFY(dialog);
        QVERIFY(dialog->window().isVisible());
        QCOMPARE(dialog->window().transientParent(), &commandLine);
        QVERIFY(dialog->window().x() > commandLine.geometry().right());
        QCOMPARE(session->getContentsController(), controller);

        session->close();
        QVERIFY(m_host->guiController().attachedDialogs().empty());
        QVERIFY(!session->getContentsController());
        QVERIFY(!session->disable());
        session->close();
        QVERIFY(m_host->guiController().attachedDialogs().empty());
    }

    void closeButton_pressesEscapeAndLeavesTheDialogOpen()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session =
            CommandContextDialogSession::create(m_host->application(), testDataUrl("contextdialog.qml"), controller);
        auto* dialog = dynamic_cast<quickhost::QuickDialog*>(m_host->guiController().attachedDialogs().front());
        QVERIFY(QTest::qWaitForWindowExposed(&dialog->window()));
        clickItem(dialog->root()->findChild<QQuickItem*>(QStringLiteral("closeButton")));
        QTRY_COMPARE(m_input->received, QStringList{"char 27"});
        QVERIFY(dialog->window().isVisible());
        QCOMPARE(m_host->guiController().attachedDialogs().size(), size_t(1));
    }

    void disablers_greyThePanelOutUntilTheFirstGoes()
    {
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session =
            CommandContextDialogSession::create(m_host->application(), testDataUrl("contextdialog.qml"), controller);
        QObject* panel = m_host->guiController().attachedDialogs().front()->root();
        QSignalSpy notified(controller.get(), &CommandContextDialogController::panelEnabledChanged);
        QVERIFY(notified.isValid());

        auto first = session->disable();
        auto second = session->disable();
        QCOMPARE(panel->property("enabled").toBool(), false);
        first.reset();
        QCOMPARE(panel->property("enabled").toBool(), true);
        QCOMPARE(notified.count(), 3);

        controller->setPanelEnabled(true);
        QCOMPARE(notified.count(), 4);

        // A disabler that outlives its controller has nothing to enable.
        session.reset();
        controller.reset();
        second.reset();
        QCOMPARE(notified.count(), 4);
    }

    void session_withoutADialog_attachesNothing()
    {
        NoDialogController gui(m_host->engine());
        ca::CaApp app(&gui);
        auto controller = std::make_shared<CommandContextDialogController>();
        auto session = CommandContextDialogSession::create(app, testDataUrl("contextdialog.qml"), controller);
        session->close();
        session.reset();
        QCOMPARE(gui.attached, 0);
        QCOMPARE(gui.detached, 0);
    }

private:
    std::unique_ptr<quickhost::QuickHost> m_host;
    std::unique_ptr<RecordingInput> m_input;
};

QTEST_MAIN(tst_CommandContext)
#include "tst_commandcontext.moc"
