#include <dlgbridge/core/ieventhandler.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QColor>
#include <QTest>

#include <qut/qtconversions.h>
#include <wut/guicolor.h>

#include "support/logrecorder.h"
#include "support/messages.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"
#include "support/testvalidator.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// A window outside any host.
class BareWindow : public qwxWindow
{
public:
    using qwxWindow::qwxWindow;
    QString typeName() const override { return QStringLiteral("BareWindow"); }
};

// Counts calls of the virtual Show(), as a dialog's override would see them.
class ShowCountingControl : public TestControl
{
public:
    using qwxWindow::Show;
    using TestControl::TestControl;
    void Show() override
    {
        ++virtualShows;
        TestControl::Show();
    }
    int virtualShows = 0;
};

class FlaggingHandler : public IEventHandler
{
public:
    explicit FlaggingHandler(bool& destroyed)
        : m_destroyed(destroyed)
    {}
    ~FlaggingHandler() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

enum class Operation { Enable, Disable, EnableTrue, EnableFalse, Show, ShowTrue, ShowFalse, Hide, SetFocus };
enum class Placeholder {
    GetSizer,
    GetContainingSizer,
    PopEventHandler,
    GetWindowStyle,
    SetWindowStyle,
    ScreenToClient
};

} // namespace

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Placeholder)

class tst_qwxWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void bridge_writesAndReadsTheNamedItem();
    void bridge_findsAnItemReplacedUnderTheSameRoot();
    void bridge_failsWithALogLineAndANeutralResult_data();
    void bridge_failsWithALogLineAndANeutralResult();
    void stateOperations_writeTheItemsProperties_data();
    void stateOperations_writeTheItemsProperties();
    void hideAndSpacers_bypassAnOverriddenShow();
    void setBackgroundColour_data();
    void setBackgroundColour();
    void placeholders_logAndAnswerNeutrally_data();
    void placeholders_logAndAnswerNeutrally();
    void pushEventHandler_destroysTheHandlerAtOnce();
    void validator_isAnOwnedCopyBoundToItsControl();
    void transfers_reachEveryValidatedChildInKeyOrder();
    void validate_isNotImplementedByAnyValidator();
    void qmlChildren_isTheHostsListThroughTheParentChain();

private:
    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
};

void tst_qwxWindow::init()
{
    m_qml = std::make_unique<QmlFixture>();
    QObject* root = m_qml->loadFile(QStringLiteral("window.qml"));
    QVERIFY(root);
    m_host = std::make_unique<TestHost>(root);
    m_host->setCustomTypes({{QStringLiteral("Field"), factoryOf<TestControl>()}});
}

void tst_qwxWindow::cleanup()
{
    m_host.reset();
    m_qml.reset();
}

void tst_qwxWindow::bridge_writesAndReadsTheNamedItem()
{
    TestControl deep("deep", *m_host);
    QObject* item = m_host->root()->findChild<QObject*>(QStringLiteral("deep"));
    QVERIFY(item);
    QCOMPARE(deep.findObject(), item);

    QVERIFY(deep.setQmlProperty("width", 42));
    QCOMPARE(item->property("width").toInt(), 42);
    item->setProperty("height", 17);
    QCOMPARE(deep.getQmlProperty("height").toInt(), 17);

    // The host's own item is the root, found by its name without a search.
    TestControl dialog("DialogAV", *m_host);
    QCOMPARE(dialog.findObject(), m_host->root());
}

void tst_qwxWindow::bridge_findsAnItemReplacedUnderTheSameRoot()
{
    TestControl swapped("swapped", *m_host);
    QCOMPARE(swapped.getQmlProperty("width").toInt(), 1);

    QObject* loader = m_host->root()->findChild<QObject*>(QStringLiteral("page"));
    loader->setProperty("pageName", QStringLiteral("two"));
    // The loader deletes its former item later, as the event loop would.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(swapped.getQmlProperty("width").toInt(), 2);
    QVERIFY(swapped.setQmlProperty("height", 5));
    QCOMPARE(swapped.findObject()->property("height").toInt(), 5);
}

void tst_qwxWindow::bridge_failsWithALogLineAndANeutralResult_data()
{
    QTest::addColumn<bool>("withRoot");
    QTest::addColumn<QString>("control");
    QTest::addColumn<bool>("write");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QStringList>("warnings");

    QTest::newRow("write without root never searches")
        << false << "first" << true << QByteArray("enabled")
        << QStringList{"('first', type: 'TestControl') Unable to set qml property enabled: no root object"};
    QTest::newRow("read without root never searches")
        << false << "first" << false << QByteArray("enabled")
        << QStringList{"('first', type: 'TestControl') Unable to get qml property enabled: no root object"};
    QTest::newRow("write to a missing item")
        << true << "ghost" << true << QByteArray("enabled")
        << QStringList{"Did not find object \"ghost\"", "(ghost) Unable to set qml property enabled: object not found"};
    QTest::newRow("read of a missing item")
        << true << "ghost" << false << QByteArray("enabled")
        << QStringList{"Did not find object \"ghost\"", "(ghost) Unable to get qml property enabled: object not found"};
    QTest::newRow("write the item refuses") << true << "first" << true << QByteArray("width")
                                            << QStringList{"(first) Error setting qml property width to 'wide'"};
    QTest::newRow("read of an undeclared property is silent")
        << true << "first" << false << QByteArray("noSuchProperty") << QStringList{};
}

void tst_qwxWindow::bridge_failsWithALogLineAndANeutralResult()
{
    QFETCH(bool, withRoot);
    QFETCH(QString, control);
    QFETCH(bool, write);
    QFETCH(QByteArray, property);
    QFETCH(QStringList, warnings);

    if (!withRoot)
        m_host->setRoot(nullptr);
    TestControl wrapper(qut::odFromQt(control), *m_host);

    LogRecorder log;
    expectMessages(QtWarningMsg, warnings);
    if (write)
        QCOMPARE(wrapper.setQmlProperty(property.toStdString(), QStringLiteral("wide")), false);
    else
        QCOMPARE(wrapper.getQmlProperty(property.toStdString()), QVariant());
    QCOMPARE(log.lines(), warnings);
}

void tst_qwxWindow::stateOperations_writeTheItemsProperties_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<bool>("expected");

    QTest::newRow("Enable()") << Operation::Enable << QByteArray("enabled") << true;
    QTest::newRow("Disable()") << Operation::Disable << QByteArray("enabled") << false;
    QTest::newRow("Enable(true)") << Operation::EnableTrue << QByteArray("enabled") << true;
    QTest::newRow("Enable(false)") << Operation::EnableFalse << QByteArray("enabled") << false;
    QTest::newRow("Show()") << Operation::Show << QByteArray("visible") << true;
    QTest::newRow("Show(true)") << Operation::ShowTrue << QByteArray("visible") << true;
    QTest::newRow("Show(false)") << Operation::ShowFalse << QByteArray("visible") << false;
    QTest::newRow("Hide()") << Operation::Hide << QByteArray("visible") << false;
    QTest::newRow("SetFocus()") << Operation::SetFocus << QByteArray("focus") << true;
}

void tst_qwxWindow::stateOperations_writeTheItemsProperties()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, property);
    QFETCH(bool, expected);

    TestControl first("first", *m_host);
    QObject* item = first.findObject();
    item->setProperty(property, !expected);

    switch (operation) {
    case Operation::Enable: first.Enable(); break;
    case Operation::Disable: first.Disable(); break;
    case Operation::EnableTrue: first.Enable(true); break;
    case Operation::EnableFalse: first.Enable(false); break;
    case Operation::Show: first.Show(); break;
    case Operation::ShowTrue: first.Show(true); break;
    case Operation::ShowFalse: first.Show(false); break;
    case Operation::Hide: first.Hide(); break;
    case Operation::SetFocus: first.SetFocus(); break;
    }

    QCOMPARE(item->property(property).toBool(), expected);
    if (property == "enabled")
        QCOMPARE(first.IsEnabled(), expected);
    if (property == "visible")
        QCOMPARE(first.IsShown(), expected);
}

void tst_qwxWindow::hideAndSpacers_bypassAnOverriddenShow()
{
    ShowCountingControl first("first", *m_host);
    QObject* item = first.findObject();

    first.Hide();
    QCOMPARE(item->property("visible").toBool(), false);
    negociateSpacerSize(&first, 7, true);
    QCOMPARE(item->property("visible").toBool(), true);
    QCOMPARE(first.virtualShows, 0);

    negociateSpacerSize(nullptr, 7, false);
    forceLayoutRecalculation(&first);
    QCOMPARE(item->property("visible").toBool(), true);
}

void tst_qwxWindow::setBackgroundColour_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<QStringList>("warnings");

    QTest::newRow("item with backgroundColor") << "first" << QColor(Qt::red) << QStringList{};
    QTest::newRow("item without it") << "plain" << QColor()
                                     << QStringList{"(plain) Error setting qml property backgroundColor to '#ff0000'",
                                                    "(plain) unable to set property backgroundColor"};
}

void tst_qwxWindow::setBackgroundColour()
{
    QFETCH(QString, control);
    QFETCH(QColor, expected);
    QFETCH(QStringList, warnings);

    TestControl wrapper(qut::odFromQt(control), *m_host);
    expectMessages(QtWarningMsg, warnings);
    wrapper.SetBackgroundColour(*wxRED);

    if (expected.isValid())
        QCOMPARE(wrapper.getQmlProperty("backgroundColor").value<QColor>(), expected);
    // The colour a window reports is the theme's, whatever was set.
    QCOMPARE(wrapper.GetBackgroundColour(), wut::guiColor(wut::EGuiColor(0)));
}

void tst_qwxWindow::placeholders_logAndAnswerNeutrally_data()
{
    QTest::addColumn<Placeholder>("placeholder");
    QTest::addColumn<QString>("message");

    QTest::newRow("GetSizer") << Placeholder::GetSizer << "qwxWindow::GetSizer : stub";
    QTest::newRow("GetContainingSizer") << Placeholder::GetContainingSizer << "qwxControl::GetContainingSizer : stub";
    QTest::newRow("PopEventHandler") << Placeholder::PopEventHandler << "PopEventHandler : stub";
    QTest::newRow("GetWindowStyle") << Placeholder::GetWindowStyle << "qwxWindow::GetWindowStyle : stub";
    QTest::newRow("SetWindowStyle") << Placeholder::SetWindowStyle << "qwxWindow::SetWindowStyle : stub";
    QTest::newRow("ScreenToClient") << Placeholder::ScreenToClient << "qwxWindow::ScreenToClient : stub";
}

void tst_qwxWindow::placeholders_logAndAnswerNeutrally()
{
    QFETCH(Placeholder, placeholder);
    QFETCH(QString, message);

    TestControl first("first", *m_host);
    QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
    switch (placeholder) {
    case Placeholder::GetSizer: QVERIFY(!first.GetSizer()); break;
    case Placeholder::GetContainingSizer: QVERIFY(!first.GetContainingSizer()); break;
    case Placeholder::PopEventHandler: first.PopEventHandler(true); break;
    case Placeholder::GetWindowStyle: QCOMPARE(first.GetWindowStyle(), 0L); break;
    case Placeholder::SetWindowStyle: first.SetWindowStyle(0x40); break;
    case Placeholder::ScreenToClient: QCOMPARE(first.ScreenToClient(wxPoint(5, 7)), wxPoint(0, 0)); break;
    }
}

void tst_qwxWindow::pushEventHandler_destroysTheHandlerAtOnce()
{
    bool destroyed = false;
    QTest::ignoreMessage(QtDebugMsg, "qwxWindow::PushEventHandler : stub");
    m_host->PushEventHandler(new FlaggingHandler(destroyed));
    QVERIFY(destroyed);

    QTest::ignoreMessage(QtDebugMsg, "qwxWindow::PushEventHandler : stub");
    m_host->PushEventHandler(nullptr);
}

void tst_qwxWindow::validator_isAnOwnedCopyBoundToItsControl()
{
    ValidatorJournal journal;
    TestControl first("first", *m_host);
    QVERIFY(!first.GetValidator());
    first.TransferDataToWindow(); // without a validator: nothing

    {
        JournalValidator original(journal);
        first.SetValidator(original);
        QVERIFY(first.GetValidator() != &original);
        QCOMPARE(original.GetWindow(), nullptr);
    }
    QCOMPARE(first.GetValidator()->GetWindow(), &first);
    QCOMPARE(first.GetValidator()->controlName(), QStringLiteral("first"));

    first.TransferDataToWindow();
    first.TransferDataFromWindow();
    QCOMPARE(journal.transfers, (QStringList{"to:first", "from:first"}));

    const int destroyedBefore = journal.destroyed;
    first.SetValidator(JournalValidator(journal));
    QCOMPARE(journal.destroyed, destroyedBefore + 2); // the replaced copy and the temporary

    QTest::ignoreMessage(QtWarningMsg, "SetValidator on window not allowed");
    m_host->SetValidator(JournalValidator(journal));
}

void tst_qwxWindow::transfers_reachEveryValidatedChildInKeyOrder()
{
    ValidatorJournal journal;
    m_host->populate();
    for (const char* name : {"first", "deep"})
        m_host->FindWindow(name)->SetValidator(JournalValidator(journal));

    m_host->TransferDataToWindow();
    m_host->TransferDataFromWindow();
    QCOMPARE(journal.transfers, (QStringList{"to:deep", "to:first", "from:deep", "from:first"}));

    // A control has no list of its own, so it doesn't pass the call on.
    TestControl bystander("plain", *m_host);
    journal.transfers.clear();
    bystander.qwxWindow::TransferDataToWindow();
    QVERIFY(journal.transfers.isEmpty());
}

void tst_qwxWindow::validate_isNotImplementedByAnyValidator()
{
    ValidatorJournal journal;
    JournalValidator validator(journal);
    QCOMPARE(validator.controlName(), QString());
    QTest::ignoreMessage(QtWarningMsg, "IValidator::Validate: needs implementations");
    QCOMPARE(validator.Validate(m_host.get()), false);
}

void tst_qwxWindow::qmlChildren_isTheHostsListThroughTheParentChain()
{
    TestControl first("first", *m_host);
    QCOMPARE(first.qmlChildren(qwxWindow::UseParentList), &m_host->list());
    QCOMPARE(first.qmlChildren(qwxWindow::OwnListOnly), nullptr);

    BareWindow orphan;
    QTest::ignoreMessage(QtWarningMsg, "\"\" window base class doesn't have qml children");
    QCOMPARE(orphan.qmlChildren(qwxWindow::UseParentList), nullptr);
    QCOMPARE(orphan.qmlChildren(qwxWindow::OwnListOnly), nullptr);

    QTest::ignoreMessage(QtWarningMsg, "\"\" window base class doesn't have qml children");
    QCOMPARE(orphan.FindWindow("first"), nullptr);

    orphan.SetParent(m_host.get());
    m_host->populate();
    QCOMPARE(orphan.FindWindow("first")->wrappedObjectName(), QStringLiteral("first"));
    QCOMPARE(orphan.bindControlName(), QStringLiteral("wxID_ANY"));
    QCOMPARE(first.bindControlName(), QStringLiteral("first"));
}

QTEST_MAIN(tst_qwxWindow)
#include "tst_qwxwindow.moc"
