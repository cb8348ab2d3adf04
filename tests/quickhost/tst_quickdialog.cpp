#include <support/paths.h>
#include <support/testdialog.h>

#include <dlgbridge/hosting/basedialogcontroller.h>

#include <quickhost/quickdialog.h>
#include <quickhost/quickhost.h>

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <wx/defs.h>

#include <functional>

using namespace dbr;
using namespace dbr::test;

namespace {

constexpr int watchdogMs = 5000;

// Refuses the first Cancel it is asked for.
class RefusingController : public BaseDialogController
{
public:
    int cancelsAsked = 0;

private:
    bool beforeCancel() override { return ++cancelsAsked > 1; }
};

// Ends with wxID_ABORT a modal run that nothing else ends, so that a fault fails the test instead of hanging it.
class Watchdog
{
public:
    explicit Watchdog(std::function<void(int)> endModal)
    {
        m_timer.setSingleShot(true);
        m_timer.callOnTimeout([endModal = std::move(endModal)] { endModal(wxID_ABORT); });
        m_timer.start(watchdogMs);
    }

private:
    QTimer m_timer;
};

} // namespace

class tst_QuickDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<quickhost::QuickHost>(QStringList{qmlImportDir()}); }
    void cleanup() { m_host.reset(); }
    void closingTheWindow_endsTheModalRunAsCancel();
    void closingTheWindow_endsOnlyWhenTheControllerAgrees_data();
    void closingTheWindow_endsOnlyWhenTheControllerAgrees();

private:
    std::unique_ptr<quickhost::QuickHost> m_host;
};

void tst_QuickDialog::closingTheWindow_endsTheModalRunAsCancel()
{
    TestDialog dialog;
    QVERIFY(wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("dialog.qml")), NotResizable, {}, nullptr));
    Watchdog watchdog([&dialog](int code) { EndModal(&dialog, code); });
    QPointer<QQuickWindow> window;
    dialog.script = [&window](TestDialog& shown) {
        QVERIFY(shown.waitForExposed());
        window = qobject_cast<QQuickItem*>(shown.root())->window();
        QVERIFY(window->close());
    };

    QCOMPARE(ShowModal(&dialog), wxID_CANCEL);
    QCOMPARE(dialog.journal.last(), QStringLiteral("beforeCancel"));
    QVERIFY(window);
    QVERIFY(!window->isVisible());
}

void tst_QuickDialog::closingTheWindow_endsOnlyWhenTheControllerAgrees_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("with content") << "dialog.qml";
    QTest::newRow("QML that failed to load") << "missing.qml";
}

void tst_QuickDialog::closingTheWindow_endsOnlyWhenTheControllerAgrees()
{
    QFETCH(QString, fileName);

    if (fileName == QLatin1String("missing.qml"))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("missing\\.qml")));
    RefusingController controller;
    quickhost::QuickDialog dialog(m_host->engine(), testDataUrl(fileName), &controller);
    Watchdog watchdog([&dialog](int code) { dialog.EndModal(code); });
    QTimer::singleShot(0, &dialog, [&dialog] {
        QVERIFY(!dialog.window().close());
        QVERIFY(dialog.IsModal());
        QVERIFY(dialog.window().isVisible());
        QVERIFY(dialog.window().close());
    });

    QCOMPARE(dialog.ShowModal(), wxID_CANCEL);
    QCOMPARE(controller.cancelsAsked, 2);
    QVERIFY(!dialog.window().isVisible());
}

QTEST_MAIN(tst_QuickDialog)
#include "tst_quickdialog.moc"
