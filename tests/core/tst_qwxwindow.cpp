#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QTest>

#include <qut/qtconversions.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"
#include "support/messages.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// A window outside any host.
class BareWindow : public qwxWindow
{
public:
    QString typeName() const override { return QStringLiteral("BareWindow"); }
};

} // namespace

class tst_qwxWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<HostedQml>("window.qml", CustomTypes{{"Field", factoryOf<TestControl>()}}); }
    void cleanup() { m_ui.reset(); }

    void bridge_findsAnItemReplacedUnderTheSameRoot();
    void bridge_failsWithALogLineAndANeutralResult_data();
    void bridge_failsWithALogLineAndANeutralResult();
    void qmlChildren_isTheHostsListThroughTheParentChain();

private:
    std::unique_ptr<HostedQml> m_ui;
};

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
