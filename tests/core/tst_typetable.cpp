#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/typetable.h>

#include <QQuickItem>
#include <QTest>

#include "support/logrecorder.h"
#include "support/messages.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"

using namespace dbr;
using namespace dbr::test;

namespace {

const QString genericWarning = QStringLiteral(
    "Component \"%1\" ( \"%2\" ) must have a 'qmlType' property to allow creating the correct backend component");

// A wrapper that brings types of its own: "Field" (which the host has
// registered already) and "Late".
class RegisteringControl : public TestControl
{
public:
    using TestControl::TestControl;
    CustomTypes registerCustomTypes() override
    {
        return {{QStringLiteral("Field"), factoryOf<RegisteringControl>()},
                {QStringLiteral("Late"), factoryOf<LateControl>()}};
    }

    class LateControl : public TestControl
    {
    public:
        using TestControl::TestControl;
        QString typeName() const override { return QStringLiteral("LateControl"); }
    };
};

QStringList keysOf(const QmlChildList::ChildMap& children)
{
    QStringList keys;
    for (const auto& entry : children)
        keys.append(entry.first);
    return keys;
}

} // namespace

class tst_TypeTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_qml = std::make_unique<QmlFixture>(); }
    void cleanup() { m_qml.reset(); }

    void typeDecision_data();
    void typeDecision();
    void walk_skipsWhatControlsMakeForThemselves();
    void customTypes_firstRegistrationWinsAndLastsOneWalk();

private:
    std::unique_ptr<QmlFixture> m_qml;
};

void tst_TypeTable::typeDecision_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("warnings");

    const auto row = [](const char* name, const QByteArray& qml, const char* type, const QStringList& warnings = {}) {
        QTest::newRow(name) << "import QtQuick 2.15\nimport QtQuick.Layouts 1.15\n" + qml << type << warnings;
    };
    row("qmlType wins over the file name", "Field { property string qmlType: \"Button\" }", "Button");
    row("non-string qmlType is ignored", "Field { property int qmlType: 3 }", "Field");
    row("plain Qt Quick class", "Rectangle {}", "QQuickRectangle");
    row("generic item must say what it is", "Item { objectName: \"box\" }", "",
        {genericWarning.arg("box", "QQuickItem")});
    row("generic item named wxID_ANY is quiet", "Item { objectName: \"wxID_ANY\" }", "");
    row("generic layout named PANEL_ is a pane", "RowLayout { objectName: \"PANEL_left\" }", "Pane");
}

void tst_TypeTable::typeDecision()
{
    QFETCH(QByteArray, qml);
    QFETCH(QString, type);
    QFETCH(QStringList, warnings);

    QObject* object = m_qml->loadData(qml);
    QVERIFY(object);
    LogRecorder log;
    expectMessages(QtWarningMsg, warnings);
    QCOMPARE(qmlTypeOf(object), type);
    QCOMPARE(log.lines(), warnings);
}

void tst_TypeTable::walk_skipsWhatControlsMakeForThemselves()
{
    QObject* root = m_qml->loadFile(QStringLiteral("hidden.qml"));
    QVERIFY(root);
    auto* pane = root->findChild<QObject*>(QStringLiteral("pane"));
    auto* contentItem = pane->property("contentItem").value<QQuickItem*>();
    QCOMPARE(contentItem->metaObject()->className(), "QQuickContentItem");
    QVERIFY(m_qml->createChild("import QtQuick 2.15\nField { objectName: \"inContent\" }", *contentItem));
    auto* delegateModel = root->findChild<QObject*>(QStringLiteral("rows"));
    QCOMPARE(delegateModel->metaObject()->className(), "QQmlDelegateModel");
    QVERIFY(m_qml->createChild("import QtQuick 2.15\nField { objectName: \"inDelegateModel\" }", *delegateModel));

    // Each of these types would get a wrapper if the walk reached an item of it.
    CustomTypes everything;
    for (const char* type :
         {"Field", "Button", "Pane", "QQuickMnemonicLabel", "QQuickContentItem", "QQmlDelegateModel"})
        everything.emplace(QString::fromLatin1(type), factoryOf<TestControl>());
    TestHost host(root);
    host.setCustomTypes(everything);
    host.populate();

    QCOMPARE(keysOf(host.list().children()), (QStringList{"ok", "pane"}));
}

void tst_TypeTable::customTypes_firstRegistrationWinsAndLastsOneWalk()
{
    // Visited from the last item up: lateFirst, registrar, lateInside, field, lateOnStack.
    TestHost host(m_qml->loadData(R"(
        import QtQuick 2.15
        import Arvela.Components 1.0
        DialogAV {
            showOk: false; showCancel: false
            Item { objectName: "lateOnStack"; property string qmlType: "Late" }
            Field { objectName: "field" }
            Item {
                objectName: "registrar"; property string qmlType: "Registrar"
                Item { objectName: "lateInside"; property string qmlType: "Late" }
            }
            Item { objectName: "lateFirst"; property string qmlType: "Late" }
        })"));
    host.setCustomTypes({{QStringLiteral("Field"), factoryOf<TestControl>()},
                         {QStringLiteral("Registrar"), factoryOf<RegisteringControl>()}});

    // The second walk starts again from the host's types alone.
    for (int walk = 0; walk < 2; ++walk) {
        QTest::ignoreMessage(QtDebugMsg, "Did not find backend component for \"lateFirst\" with qml type: \"Late\"");
        host.populate();
        const auto& children = host.list().children();
        QCOMPARE(keysOf(children), (QStringList{"field", "lateInside", "lateOnStack", "registrar"}));
        for (const char* late : {"lateInside", "lateOnStack"})
            QCOMPARE(children.at(late).front()->typeName(), QStringLiteral("LateControl"));
        QVERIFY(dynamic_cast<RegisteringControl*>(children.at("registrar").front().get()));
        QVERIFY(!dynamic_cast<RegisteringControl*>(children.at("field").front().get()));
    }
}

QTEST_MAIN(tst_TypeTable)
#include "tst_typetable.moc"
