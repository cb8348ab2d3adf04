#include <QImage>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QTest>

#include "support/qmlfixture.h"

using namespace dbr::test;

class tst_ComponentKit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_qml = std::make_unique<QmlFixture>(); }
    void cleanup() { m_qml.reset(); }

    void component_offersWhatItsWrapperUses_data();
    void component_offersWhatItsWrapperUses();
    void image_showsTheImageItIsGiven_data();
    void image_showsTheImageItIsGiven();

private:
    QObject* load(const QByteArray& component);

    std::unique_ptr<QmlFixture> m_qml;
};

QObject* tst_ComponentKit::load(const QByteArray& component)
{
    return m_qml->loadData("import QtQuick 2.15\nimport Arvela.Components 1.0\n" + component);
}

void tst_ComponentKit::component_offersWhatItsWrapperUses_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QStringList>("members"); // properties, and signals with their parentheses

    const QStringList common{"enabled", "visible", "focus"};
    const QStringList clicks{"doubleClicked()", "contextMenu()"};
    const QStringList button = clicks + QStringList{"clicked()"};
    for (const char* name : {"Button", "ButtonOutline", "RoundButton", "IconButton", "GhostButton"})
        QTest::newRow(name) << QByteArray(name) << common + button + QStringList{"text"};
    for (const char* name : {"CheckBox", "RadioButton"})
        QTest::newRow(name) << QByteArray(name) << common + QStringList{"checked", "text", "clicked()"};
    QTest::newRow("ToggleButton") << QByteArray("ToggleButton")
                                  << common + QStringList{"model", "currentIndex", "currentIndexChanged()"};
    QTest::newRow("Label") << QByteArray("Label") << common + clicks + QStringList{"text", "color"};
    QTest::newRow("SpinBox") << QByteArray("SpinBox") << common + QStringList{"value", "from", "to", "valueModified()"};
    for (const char* name : {"Image", "ImageAV"})
        QTest::newRow(name) << QByteArray(name) << common + clicks + QStringList{"image", "icon"};
    QTest::newRow("ImageButton") << QByteArray("ImageButton") << common + button + QStringList{"image"};
    QTest::newRow("ProgressBar") << QByteArray("ProgressBar") << common + QStringList{"from", "to", "value"};
    QTest::newRow("DialogAV") << QByteArray("DialogAV")
                              << common + QStringList{"title", "accepted()", "rejected()", "applied()"};
}

void tst_ComponentKit::component_offersWhatItsWrapperUses()
{
    QFETCH(QByteArray, component);
    QFETCH(QStringList, members);

    QObject* item = load(component + " {}");
    QVERIFY(item);
    const QMetaObject* meta = item->metaObject();
    // The wrappers read a component's type from its class name.
    QVERIFY2(QByteArray(meta->className()).startsWith(component + "_QMLTYPE_"), meta->className());
    for (const QString& member : members) {
        const QByteArray name = member.toLatin1();
        QVERIFY2((name.endsWith(')') ? meta->indexOfSignal(name) : meta->indexOfProperty(name)) >= 0, name);
    }
}

void tst_ComponentKit::image_showsTheImageItIsGiven_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::newRow("ImageAV, the kit's Image") << QByteArray("ImageAV");
    QTest::newRow("ImageButton") << QByteArray("ImageButton");
}

void tst_ComponentKit::image_showsTheImageItIsGiven()
{
    QFETCH(QByteArray, component);

    QObject* root =
        load("Item { width: 40; height: 40; " + component + " { objectName: \"picture\"; anchors.fill: parent } }");
    QVERIFY(root);
    QObject* picture = root->findChild<QObject*>(QStringLiteral("picture"));
    QImage red(4, 4, QImage::Format_ARGB32);
    red.fill(Qt::red);
    QVERIFY(picture->setProperty("image", QVariant::fromValue(red)));
    QCOMPARE(picture->property("image").value<QImage>(), red);

    // What the scene graph would draw: the canvas paints the image over its whole size.
    auto* canvas = picture->findChild<QQuickPaintedItem*>();
    QVERIFY(canvas);
    QVERIFY(canvas->width() > 30 && canvas->height() > 30);
    QImage shown(canvas->size().toSize(), QImage::Format_ARGB32);
    shown.fill(Qt::white);
    QPainter painter(&shown);
    canvas->paint(&painter);
    painter.end();
    QCOMPARE(QColor(shown.pixel(shown.width() - 2, shown.height() - 2)), QColor(Qt::red));
}

QTEST_MAIN(tst_ComponentKit)
#include "tst_componentkit.moc"
