#include <QImage>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include "support/itemwindow.h"
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
    void toggleButton_aClickedSegmentBecomesCurrent();
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
    QTest::addColumn<QStringList>("properties");
    QTest::addColumn<QStringList>("signalList");

    const QStringList common{"enabled", "visible", "focus"};
    const QStringList buttonSignals{"clicked()", "doubleClicked()", "contextMenu()"};
    for (const char* button : {"Button", "ButtonOutline", "RoundButton", "IconButton", "GhostButton"})
        QTest::newRow(button) << QByteArray(button) << common + QStringList{"text"} << buttonSignals;
    QTest::newRow("CheckBox") << QByteArray("CheckBox") << common + QStringList{"checked", "text"}
                              << QStringList{"clicked()"};
    QTest::newRow("RadioButton") << QByteArray("RadioButton") << common + QStringList{"checked", "text"}
                                 << QStringList{"clicked()"};
    QTest::newRow("ToggleButton") << QByteArray("ToggleButton") << common + QStringList{"model", "currentIndex"}
                                  << QStringList{"currentIndexChanged()"};
    QTest::newRow("Label") << QByteArray("Label") << common + QStringList{"text", "color"}
                           << QStringList{"doubleClicked()", "contextMenu()"};
    QTest::newRow("SpinBox") << QByteArray("SpinBox") << common + QStringList{"value", "from", "to"}
                             << QStringList{"valueModified()"};
    for (const char* image : {"Image", "ImageAV"}) {
        QTest::newRow(image) << QByteArray(image) << common + QStringList{"image", "icon"}
                             << QStringList{"doubleClicked()", "contextMenu()"};
    }
    QTest::newRow("ImageButton") << QByteArray("ImageButton") << common + QStringList{"image"} << buttonSignals;
    QTest::newRow("ProgressBar") << QByteArray("ProgressBar") << common + QStringList{"from", "to", "value"}
                                 << QStringList{};
    QTest::newRow("DialogAV") << QByteArray("DialogAV") << common + QStringList{"title"}
                              << QStringList{"accepted()", "rejected()", "applied()"};
}

void tst_ComponentKit::component_offersWhatItsWrapperUses()
{
    QFETCH(QByteArray, component);
    QFETCH(QStringList, properties);
    QFETCH(QStringList, signalList);

    QObject* item = load(component + " {}");
    QVERIFY(item);
    const QMetaObject* meta = item->metaObject();
    // The wrappers read a component's type from its class name.
    QVERIFY2(QByteArray(meta->className()).startsWith(component + "_QMLTYPE_"), meta->className());
    for (const QString& property : properties)
        QVERIFY2(meta->indexOfProperty(qPrintable(property)) >= 0, qPrintable(property));
    for (const QString& signal : signalList)
        QVERIFY2(meta->indexOfSignal(qPrintable(signal)) >= 0, qPrintable(signal));
}

void tst_ComponentKit::toggleButton_aClickedSegmentBecomesCurrent()
{
    QObject* root =
        load("Item { width: 300; height: 50; ToggleButton { objectName: \"mode\"; model: [\"A\", \"B\", \"C\"] } }");
    QVERIFY(root);
    auto* toggle = root->findChild<QQuickItem*>(QStringLiteral("mode"));
    QSignalSpy changed(toggle, SIGNAL(currentIndexChanged()));
    QVERIFY(changed.isValid());
    ItemWindow window(root);
    QCOMPARE(toggle->childItems().size(), 4); // three segments, then their repeater
    clickItem(toggle->childItems().at(2));
    QCOMPARE(toggle->property("currentIndex").toInt(), 2);
    QCOMPARE(changed.count(), 1);
}

void tst_ComponentKit::image_showsTheImageItIsGiven_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::newRow("Image") << QByteArray("Image");
    QTest::newRow("ImageAV") << QByteArray("ImageAV");
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
