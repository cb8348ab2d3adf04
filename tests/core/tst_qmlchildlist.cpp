#include <dlgbridge/core/qmlchildlist.h>

#include <QPointer>
#include <QTest>

#include <qut/qtconversions.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"
#include "support/messages.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// Counts the wrappers of its kind that are alive.
class CountedControl : public TestControl
{
public:
    CountedControl(const OdString& name, qwxWindow& parent)
        : TestControl(name, parent)
    {
        ++alive;
        ++made;
    }
    ~CountedControl() override { --alive; }
    static int alive;
    static int made;
};
int CountedControl::alive = 0;
int CountedControl::made = 0;

// Another class that claims the same type name as TestControl.
class TwinControl : public qwxControl
{
public:
    using qwxControl::qwxControl;
    static QString typeId() { return TestControl::typeId(); }
    QString typeName() const override { return typeId(); }
};

class OtherControl : public qwxControl
{
public:
    using qwxControl::qwxControl;
    DBR_WRAPPER_TYPE(OtherControl)
};

} // namespace

class tst_QmlChildList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void populate_replacesEveryWrapperAndCallback();
    void findWindow_data();
    void findWindow();
    void child_castsDynamicallyAndExplainsAMismatch();

private:
    std::unique_ptr<HostedQml> m_ui;
};

void tst_QmlChildList::init()
{
    CountedControl::made = 0;
    m_ui = std::make_unique<HostedQml>("walk.qml", CustomTypes{{"Field", factoryOf<CountedControl>()}});
}

void tst_QmlChildList::cleanup()
{
    m_ui.reset();
    QCOMPARE(CountedControl::alive, 0);
}

void tst_QmlChildList::populate_replacesEveryWrapperAndCallback()
{
    QmlChildList& list = m_ui->host.list();
    QCOMPARE(CountedControl::alive, 7);
    QPointer<QObject> callback = &list.addQmlCallback(std::make_unique<QObject>());

    // A second walk of the same tree: the former wrappers and callbacks are gone, fresh wrappers stand.
    m_ui->host.populate();
    QCOMPARE(CountedControl::made, 14);
    QCOMPARE(CountedControl::alive, 7);
    QVERIFY(callback.isNull());
}

void tst_QmlChildList::findWindow_data()
{
    QTest::addColumn<QString>("hostName");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("found"); // the wrapped object name, "host" for the host, empty for none
    QTest::addColumn<QStringList>("criticals");

    const QString dialog = QStringLiteral("DialogAV");
    QTest::newRow("unique name") << dialog << "b" << "b" << QStringList{};
    QTest::newRow("host's name wins over an item of that name") << "b" << "b" << "host" << QStringList{};
    QTest::newRow("missing name") << dialog << "zzz" << "" << QStringList{"Unable to find window object 'zzz'"};
    // A name that looks like a place marker is still only a name.
    QTest::newRow("name held by two items")
        << dialog << "a%1" << "" << QStringList{"Error getting single window object 'a%1': 2 instances found"};
}

void tst_QmlChildList::findWindow()
{
    QFETCH(QString, hostName);
    QFETCH(QString, name);
    QFETCH(QString, found);
    QFETCH(QStringList, criticals);

    TestHost host(m_ui->host.root(), hostName);
    host.setCustomTypes({{QStringLiteral("Field"), factoryOf<TestControl>()}});
    host.populate();

    LogRecorder log;
    expectMessages(QtCriticalMsg, criticals);
    qwxWindow* window = host.list().FindWindow(qut::odFromQt(name));
    QCOMPARE(log.lines(), criticals);
    if (found.isEmpty())
        QCOMPARE(window, nullptr);
    else if (found == QLatin1String("host"))
        QCOMPARE(window, &host);
    else
        QCOMPARE(window->wrappedObjectName(), found);
}

void tst_QmlChildList::child_castsDynamicallyAndExplainsAMismatch()
{
    QmlChildList& list = m_ui->host.list();
    QVERIFY(list.child<TestControl>("b"));

    QTest::ignoreMessage(QtCriticalMsg, "Child object (b) has type 'TestControl', expected 'OtherControl'");
    QCOMPARE(list.child<OtherControl>("b"), nullptr);

    QTest::ignoreMessage(QtCriticalMsg, "Child object (b) has type 'TestControl', expected 'TestControl'");
    QTest::ignoreMessage(QtCriticalMsg,
                         "Type and expected type names being equal could mean the component type is derived from "
                         "this type, but the 'qmlType' property is not set in the qml component");
    QCOMPARE(list.child<TwinControl>("b"), nullptr);
}

QTEST_MAIN(tst_QmlChildList)
#include "tst_qmlchildlist.moc"
