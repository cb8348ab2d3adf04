#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QColor>
#include <QTest>

#include <functional>

#include <qut/qtconversions.h>
#include <wut/guicolor.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"
#include "support/messages.h"
#include "support/testvalidator.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// A window outside any host.
class BareWindow : public qwxWindow
{
public:
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

using Operation = std::function<void(qwxWindow&)>;

} // namespace

Q_DECLARE_METATYPE(Operation)

class tst_qwxWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<HostedQml>("window.qml", CustomTypes{{"Field", factoryOf<TestControl>()}}); }
    void cleanup() { m_ui.reset(); }

    void bridge_writesAndReadsTheNamedItem();
    void bridge_findsAnItemReplacedUnderTheSameRoot();
    void bridge_failsWithALogLineAndANeutralResult_data();
    void bridge_failsWithALogLineAndANeutralResult();
    void stateOperations_writeTheItemsProperties_data();
    void stateOperations_writeTheItemsProperties();
    void hideAndSpacers_bypassAnOverriddenShow();
    void setBackgroundColour_data();
    void setBackgroundColour();
    void validator_isAnOwnedCopyBoundToItsControl();
    void transfers_reachEveryValidatedChildInKeyOrder();
    void qmlChildren_isTheHostsListThroughTheParentChain();

private:
    std::unique_ptr<HostedQml> m_ui;
};

void tst_qwxWindow::bridge_writesAndReadsTheNamedItem()
{
    TestControl deep("deep", m_ui->host);
    QObject* item = m_ui->item("deep");
    QCOMPARE(deep.findObject(), item);
    QVERIFY(deep.setQmlProperty("width", 42));
    QCOMPARE(item->property("width").toInt(), 42);
    item->setProperty("height", 17);
    QCOMPARE(deep.getQmlProperty("height").toInt(), 17);

    // The host's own item is the root, found by its name without a search.
    QCOMPARE(TestControl("DialogAV", m_ui->host).findObject(), m_ui->host.root());
}

void tst_qwxWindow::bridge_findsAnItemReplacedUnderTheSameRoot()
{
    TestControl swapped("swapped", m_ui->host);
    QCOMPARE(swapped.getQmlProperty("width").toInt(), 1);

    m_ui->item("page")->setProperty("pageName", QStringLiteral("two"));
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
        m_ui->host.setRoot(nullptr);
    TestControl wrapper(qut::odFromQt(control), m_ui->host);

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

    QTest::newRow("Enable()") << Operation([](qwxWindow& w) { w.Enable(); }) << QByteArray("enabled") << true;
    QTest::newRow("Disable()") << Operation([](qwxWindow& w) { w.Disable(); }) << QByteArray("enabled") << false;
    QTest::newRow("Show()") << Operation([](qwxWindow& w) { w.Show(); }) << QByteArray("visible") << true;
    QTest::newRow("Hide()") << Operation([](qwxWindow& w) { w.Hide(); }) << QByteArray("visible") << false;
    QTest::newRow("SetFocus()") << Operation([](qwxWindow& w) { w.SetFocus(); }) << QByteArray("focus") << true;
}

void tst_qwxWindow::stateOperations_writeTheItemsProperties()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, property);
    QFETCH(bool, expected);

    TestControl first("first", m_ui->host);
    QObject* item = first.findObject();
    item->setProperty(property, !expected);
    operation(first);
    QCOMPARE(item->property(property).toBool(), expected);
    if (property == "enabled")
        QCOMPARE(first.IsEnabled(), expected);
    if (property == "visible")
        QCOMPARE(first.IsShown(), expected);
}

void tst_qwxWindow::hideAndSpacers_bypassAnOverriddenShow()
{
    ShowCountingControl first("first", m_ui->host);
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
    QTest::addColumn<QStringList>("warnings");

    QTest::newRow("item with backgroundColor") << "first" << QStringList{};
    QTest::newRow("item without it") << "plain"
                                     << QStringList{"(plain) Error setting qml property backgroundColor to '#ff0000'",
                                                    "(plain) unable to set property backgroundColor"};
}

void tst_qwxWindow::setBackgroundColour()
{
    QFETCH(QString, control);
    QFETCH(QStringList, warnings);

    TestControl wrapper(qut::odFromQt(control), m_ui->host);
    expectMessages(QtWarningMsg, warnings);
    wrapper.SetBackgroundColour(*wxRED);
    if (warnings.isEmpty())
        QCOMPARE(wrapper.getQmlProperty("backgroundColor").value<QColor>(), QColor(Qt::red));
    // The colour a window reports is the theme's, whatever was set.
    QCOMPARE(wrapper.GetBackgroundColour(), wut::guiColor(wut::EGuiColor(0)));
}

void tst_qwxWindow::validator_isAnOwnedCopyBoundToItsControl()
{
    ValidatorJournal journal;
    TestControl first("first", m_ui->host);
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
    m_ui->host.SetValidator(JournalValidator(journal));
}

void tst_qwxWindow::transfers_reachEveryValidatedChildInKeyOrder()
{
    // Outlives the list's wrappers and their validators.
    static ValidatorJournal journal;
    for (const char* name : {"first", "deep"})
        m_ui->host.FindWindow(name)->SetValidator(JournalValidator(journal));

    m_ui->host.TransferDataToWindow();
    m_ui->host.TransferDataFromWindow();
    QCOMPARE(journal.transfers, (QStringList{"to:deep", "to:first", "from:deep", "from:first"}));

    // A control has no list of its own, so it doesn't pass the call on.
    TestControl bystander("plain", m_ui->host);
    journal.transfers.clear();
    bystander.qwxWindow::TransferDataToWindow();
    QVERIFY(journal.transfers.isEmpty());
}

void tst_qwxWindow::qmlChildren_isTheHostsListThroughTheParentChain()
{
    TestControl first("first", m_ui->host);
    QCOMPARE(first.qmlChildren(qwxWindow::UseParentList), &m_ui->host.list());
    QCOMPARE(first.qmlChildren(qwxWindow::OwnListOnly), nullptr);

    BareWindow orphan;
    QTest::ignoreMessage(QtWarningMsg, "\"\" window base class doesn't have qml children");
    QCOMPARE(orphan.qmlChildren(qwxWindow::UseParentList), nullptr);
    QTest::ignoreMessage(QtWarningMsg, "\"\" window base class doesn't have qml children");
    QCOMPARE(orphan.FindWindow("first"), nullptr);

    orphan.SetParent(&m_ui->host);
    QCOMPARE(orphan.FindWindow("first")->wrappedObjectName(), QStringLiteral("first"));
    QCOMPARE(orphan.bindControlName(), QStringLiteral("wxID_ANY"));
    QCOMPARE(first.bindControlName(), QStringLiteral("first"));
}

QTEST_MAIN(tst_qwxWindow)
#include "tst_qwxwindow.moc"
