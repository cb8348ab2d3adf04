#include <support/cmcolors.h>
#include <support/objectroles.h>

#include <dlgbridge/cadmodels/colormodel.h>

#include <quickhost/quickhost.h>

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <oda/OdDbDatabase.h>

#include <memory>

using namespace dbr;
using namespace dbr::test;
using namespace dbr::quickhost;

namespace {

constexpr int comboFlags = QuickGuiController::WithByLayerByBlock | QuickGuiController::WithTrueColors;

// The rows as "name" for colours, "*" for the varies row and "+" for the load row.
QString rows(const ColorModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const ColorObject* object = model.getColorObject(row);
        texts.append(object->kind == VariesRow ? QStringLiteral("*")
                     : object->kind == LoadRow ? QStringLiteral("+")
                                               : object->name);
    }
    return texts.join(QLatin1Char(' '));
}

// The trailing rows: the load row last, the varies row right before it exactly while the model varies.
void verifyTrailingRows(const ColorModel& model)
{
    const int count = model.rowCount();
    QVERIFY(count >= 1);
    QCOMPARE(model.getColorObject(count - 1)->kind, LoadRow);
    for (int row = 0; row < count - 1; ++row) {
        const bool variesRow = model.isVaries() && row == count - 2;
        QCOMPARE(model.getColorObject(row)->kind, variesRow ? VariesRow : ColorRow);
    }
}

// A controller whose list is empty.
class EmptyListController : public QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;
    OdArray<int> colorIndexList(int) override { return {}; }
};

} // namespace

class tst_ColorModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rows_areTheControllersListThenTheLoadRow();
    void emptyList_hasOnlyTheLoadRow_andVariesGoesFirst();
    void getOrAddColor_data();
    void getOrAddColor();
    void getOrAddColor_onAVaryingModel_answersTheVariesRow();
    void setCurrentIndex_takesOnlyARow_data();
    void setCurrentIndex_takesOnlyARow();
    void color_outsideTheRowsHasNoColour();
    void color_withFlag32_isWhiteForRowZero();
    void setIsVaries_false_leavesTheCurrentIndex();
    void onClicked_loadRowCancelled_restoresAndEmitsNoColour();
    void onClicked_loadRowChosen_addsTheColourAndEmitsIt();
    void onClicked_refusedColour_isNotAdded();
    void onClicked_sameRow_emitsNoColour();
    void doShowColorDialog_cancelled_givesTheIndexBack();
    void setColor_makesTheRowCurrent();
    void setByLayer_data();
    void setByLayer();
    void randomSequence_keepsTheTrailingRows();

private:
    std::unique_ptr<QuickHost> m_host;
};

void tst_ColorModel::init()
{
    m_host = std::make_unique<QuickHost>();
}

void tst_ColorModel::cleanup()
{
    m_host.reset();
}

void tst_ColorModel::rows_areTheControllersListThenTheLoadRow()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));

    QCOMPARE(rows(model), QStringLiteral("ByLayer ByBlock Red Yellow Green Cyan Blue Magenta White +"));
    QVERIFY(model.getColorObject(0)->drawDiagonal);
    QVERIFY(!model.getColorObject(2)->drawDiagonal);
    QCOMPARE(model.getColorObject(2)->color, QColor(Qt::red));
    QCOMPARE(model.getColorObject(2)->property("type").toString(), QString());
    QCOMPARE(model.getColorObject(9)->property("type").toString(), QStringLiteral("load"));
    QCOMPARE(model.getColorObject(9)->colorIndex, 0);
    QVERIFY(!model.getColorObject(9)->color.isValid());
    QCOMPARE(model.getCurrentIndex(), -1);
    QVERIFY(!model.isVaries());
    QCOMPARE(model.byLayerColor(), QColor(Qt::black));

    ColorModel full(m_host->guiController(), m_host->dialogFactory(), QuickGuiController::FullPalette, true,
                    QSize(20, 10));
    QCOMPARE(full.rowCount(), 255 + 2);
    QVERIFY(full.isVaries());
    QCOMPARE(full.getColorObject(41)->name, QStringLiteral("Color 42"));
}

void tst_ColorModel::emptyList_hasOnlyTheLoadRow_andVariesGoesFirst()
{
    EmptyListController gui(m_host->engine());
    ColorModel model(gui, m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    test::attachModelTester(model);
    QSignalSpy current(&model, &ColorModel::currentItemChanged);
    QVERIFY(current.isValid());

    QCOMPARE(rows(model), QStringLiteral("+"));
    QVERIFY(!model.isVaries());

    model.setIsVaries(true);
    QCOMPARE(rows(model), QStringLiteral("* +"));
    QVERIFY(model.isVaries());
    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(current.count(), 1);
}

void tst_ColorModel::getOrAddColor_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<OdCmColor>("color");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("rowsAfter");

    const QString standard = QStringLiteral("ByLayer ByBlock Red Yellow Green Cyan Blue Magenta White");
    QTest::newRow("listed index colour") << comboFlags << indexed(3) << 4 << standard + " +";
    QTest::newRow("by layer") << comboFlags << OdCmColor(OdCmColor::kByLayer) << 0 << standard + " +";
    QTest::newRow("new index colour") << comboFlags << indexed(42) << 9 << standard + " Color 42 +";
    QTest::newRow("new true colour") << comboFlags << rgb(255, 128, 0) << 9 << standard + " 255,128,0 +";
    QTest::newRow("true colour refused") << int(QuickGuiController::WithByLayerByBlock) << rgb(255, 128, 0) << 0
                                         << standard + " +";
    QTest::newRow("none refused") << comboFlags << OdCmColor(OdCmColor::kNone) << 0 << standard + " +";
}

Q_DECLARE_METATYPE(OdCmColor)

void tst_ColorModel::getOrAddColor()
{
    QFETCH(int, flags);
    QFETCH(OdCmColor, color);
    QFETCH(int, row);
    QFETCH(QString, rowsAfter);

    ColorModel model(m_host->guiController(), m_host->dialogFactory(), flags, false, QSize(-1, -1));
    test::attachModelTester(model);

    QCOMPARE(model.getOrAddColor(color), row);
    QCOMPARE(rows(model), rowsAfter);
    // Asked again, the colour is found where it went.
    QCOMPARE(model.getOrAddColor(color), row);
    QCOMPARE(rows(model), rowsAfter);
}

void tst_ColorModel::getOrAddColor_onAVaryingModel_answersTheVariesRow()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, true, QSize(-1, -1));
    test::attachModelTester(model);

    QCOMPARE(model.getOrAddColor(indexed(1)), 9);
    // A new colour still gets its row, above the varies row.
    QCOMPARE(model.getOrAddColor(rgb(1, 2, 3)), 10);
    QCOMPARE(rows(model), QStringLiteral("ByLayer ByBlock Red Yellow Green Cyan Blue Magenta White 1,2,3 * +"));
}

void tst_ColorModel::setCurrentIndex_takesOnlyARow_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("signals");

    QTest::newRow("load row") << 9 << 9 << 1;
    QTest::newRow("-1") << -1 << 4 << 0;
    QTest::newRow("past the rows") << 10 << 4 << 0;
    QTest::newRow("same row fires again") << 4 << 4 << 1;
}

void tst_ColorModel::setCurrentIndex_takesOnlyARow()
{
    QFETCH(int, index);
    QFETCH(int, current);
    QFETCH(int, signals);

    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    model.setCurrentIndex(4);
    QSignalSpy spy(&model, &ColorModel::currentItemChanged);
    QVERIFY(spy.isValid());

    model.setCurrentIndex(index);
    QCOMPARE(model.getCurrentIndex(), current);
    QCOMPARE(spy.count(), signals);
}

void tst_ColorModel::color_outsideTheRowsHasNoColour()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));

    QCOMPARE(model.color(-1).colorMethod(), OdCmColor::kNone);
    QCOMPARE(model.color(model.rowCount()).colorMethod(), OdCmColor::kNone);
    QCOMPARE(model.getColor(-1), 0u);
    QVERIFY(model.color(0).isByLayer());
    QCOMPARE(model.color(2), indexed(1));
    QCOMPARE(model.getColor(2), indexed(1).color());
    // A special row stands for index 0 of the controller.
    QVERIFY(model.color(model.rowCount() - 1).isByBlock());
}

void tst_ColorModel::color_withFlag32_isWhiteForRowZero()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags | ColorModel::WhiteAtRowZero, false,
                     QSize(-1, -1));

    QCOMPARE(model.color(0), rgb(255, 255, 255));
    QVERIFY(model.color(1).isByBlock());
    model.clearFlag(32);
    QVERIFY(model.color(0).isByLayer());
}

void tst_ColorModel::setIsVaries_false_leavesTheCurrentIndex()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    test::attachModelTester(model);

    model.setIsVaries(true);
    QCOMPARE(model.getCurrentIndex(), 9);
    QCOMPARE(rows(model).right(3), QStringLiteral("* +"));
    model.setIsVaries(true);
    QCOMPARE(model.rowCount(), 11);

    model.setIsVaries(false);
    QCOMPARE(model.rowCount(), 10);
    // Now on the load row: what to make of that is the caller's business.
    QCOMPARE(model.getCurrentIndex(), 9);
}

void tst_ColorModel::onClicked_loadRowCancelled_restoresAndEmitsNoColour()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    model.setCurrentIndex(3);
    OdCmColor asked;
    m_host->dialogFactory().setupColorDialogFaker([&asked](const OdCmColor& current, unsigned int) {
        asked = current;
        return std::nullopt;
    });
    QSignalSpy current(&model, &ColorModel::currentItemChanged);
    QSignalSpy changed(&model, &ColorModel::colorChanged);
    QVERIFY(current.isValid());
    QVERIFY(changed.isValid());

    model.onClicked(9);

    QCOMPARE(asked, indexed(2));
    QCOMPARE(model.getCurrentIndex(), 3);
    QCOMPARE(current.count(), 2);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(model.rowCount(), 10);
}

void tst_ColorModel::onClicked_loadRowChosen_addsTheColourAndEmitsIt()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    test::attachModelTester(model);
    unsigned int options = 0;
    m_host->dialogFactory().setupColorDialogFaker([&options](const OdCmColor&, unsigned int given) {
        options = given;
        return std::optional<OdCmColor>(rgb(10, 20, 30));
    });
    QSignalSpy changed(&model, &ColorModel::colorChanged);
    QVERIFY(changed.isValid());

    model.onClicked(9);

    QCOMPARE(options, 3u);
    QCOMPARE(rows(model).right(10), QStringLiteral("10,20,30 +"));
    QCOMPARE(model.getCurrentIndex(), 9);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 9);
}

void tst_ColorModel::onClicked_refusedColour_isNotAdded()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), QuickGuiController::WithByLayerByBlock, false,
                     QSize(-1, -1));
    model.setCurrentIndex(4);
    m_host->dialogFactory().setupColorDialogFaker(
        [](const OdCmColor&, unsigned int) { return std::optional<OdCmColor>(rgb(10, 20, 30)); });
    QSignalSpy changed(&model, &ColorModel::colorChanged);
    QVERIFY(changed.isValid());

    model.onClicked(9);

    // A refused colour resolves to row 0.
    QCOMPARE(model.rowCount(), 10);
    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 0);
}

void tst_ColorModel::onClicked_sameRow_emitsNoColour()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    QSignalSpy changed(&model, &ColorModel::colorChanged);
    QSignalSpy current(&model, &ColorModel::currentItemChanged);
    QVERIFY(changed.isValid());
    QVERIFY(current.isValid());

    model.onClicked(5);
    model.onClicked(5);
    model.onClicked(-1);
    model.onClicked(10);

    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toInt(), 5);
    QCOMPARE(current.count(), 2);
}

void tst_ColorModel::doShowColorDialog_cancelled_givesTheIndexBack()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, true, QSize(-1, -1));
    m_host->dialogFactory().setupColorDialogFaker([](const OdCmColor&, unsigned int) { return std::nullopt; });
    QCOMPARE(model.doShowColorDialog(4), 4);
    QVERIFY(model.isVaries());

    unsigned int options = 0;
    m_host->dialogFactory().setupColorDialogFaker([&options](const OdCmColor&, unsigned int given) {
        options = given;
        return std::optional<OdCmColor>(indexed(5));
    });
    QCOMPARE(model.doShowColorDialog(4), 6);
    // The dialog is told that the model varied; a choice ends that.
    QCOMPARE(options, 3u | QuickGuiController::DialogVaries);
    QVERIFY(!model.isVaries());
}

void tst_ColorModel::setColor_makesTheRowCurrent()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    test::attachModelTester(model);
    QSignalSpy reset(&model, &ColorModel::modelReset);
    QVERIFY(reset.isValid());

    model.setColor(rgb(9, 9, 9));

    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.getCurrentIndex(), 9);
    QCOMPARE(model.getColorObject(9)->name, QStringLiteral("9,9,9"));
}

void tst_ColorModel::setByLayer_data()
{
    QTest::addColumn<QString>("layer");
    QTest::addColumn<QColor>("byLayer");

    QTest::newRow("null id") << "none" << QColor(Qt::black);
    QTest::newRow("layer in model space") << "layer" << QColor(Qt::green);
    QTest::newRow("erased layer") << "erased" << QColor(Qt::black);
    QTest::newRow("not a layer") << "linetype" << QColor(Qt::black);
    QTest::newRow("layout, colour of the viewport") << "viewport" << QColor(Qt::blue);
    QTest::newRow("layout without viewport") << "layout" << QColor(Qt::green);
}

void tst_ColorModel::setByLayer()
{
    QFETCH(QString, layer);
    QFETCH(QColor, byLayer);

    OdDbDatabasePtr database = OdDbDatabase::createObject();
    const OdDbObjectId walls = database->addLayer("Walls", indexed(3));
    OdDbObjectId id = walls;
    if (layer == QLatin1String("none"))
        id = OdDbObjectId::kNull;
    if (layer == QLatin1String("linetype"))
        id = database->getLinetypeContinuousId();
    if (layer == QLatin1String("erased"))
        walls.openObject()->erase();
    if (layer == QLatin1String("viewport") || layer == QLatin1String("layout"))
        database->setTILEMODE(false);
    if (layer == QLatin1String("viewport"))
        OdDbLayerTableRecord::cast(walls.openObject())->setColor(indexed(5), database->addViewport());

    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    model.setByLayer(database->addLayer("Red", indexed(1)));
    QCOMPARE(model.byLayerColor(), QColor(Qt::red));
    QSignalSpy spy(&model, &ColorModel::byLayerColorChanged);
    QVERIFY(spy.isValid());

    model.setByLayer(id);

    QCOMPARE(model.byLayerColor(), byLayer);
    QCOMPARE(spy.count(), 1);
    // Rows keep the colour they were built with.
    QCOMPARE(model.getColorObject(0)->color, QColor(Qt::black));
}

void tst_ColorModel::randomSequence_keepsTheTrailingRows()
{
    ColorModel model(m_host->guiController(), m_host->dialogFactory(), comboFlags, false, QSize(-1, -1));
    test::attachModelTester(model);
    QRandomGenerator random(13);
    const auto randomColor = [&random] {
        switch (random.bounded(4)) {
        case 0: return indexed(random.bounded(1, 256));
        case 1: return rgb(random.bounded(4), random.bounded(4), random.bounded(4));
        case 2: return OdCmColor(OdCmColor::kByBlock);
        default: return OdCmColor(OdCmColor::kNone);
        }
    };
    m_host->dialogFactory().setupColorDialogFaker([&](const OdCmColor&, unsigned int) -> std::optional<OdCmColor> {
        if (random.bounded(3) == 0)
            return std::nullopt;
        return randomColor();
    });

    for (int step = 0; step < 400; ++step) {
        const int rowCount = model.rowCount();
        QString what;
        switch (random.bounded(5)) {
        case 0:
            model.setIsVaries(random.bounded(2) == 1);
            what = QStringLiteral("setIsVaries");
            break;
        case 1: {
            const int row = model.getOrAddColor(randomColor());
            QVERIFY(row >= 0 && row < model.rowCount());
            what = QStringLiteral("getOrAddColor");
            break;
        }
        case 2:
            model.onClicked(random.bounded(-1, rowCount + 1));
            what = QStringLiteral("onClicked");
            break;
        case 3:
            model.onClicked(rowCount - 1);
            what = QStringLiteral("dialog");
            break;
        default:
            model.setColor(randomColor());
            what = QStringLiteral("setColor");
            break;
        }
        verifyTrailingRows(model);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("after step %1, %2").arg(step).arg(what)));
    }
}

QTEST_MAIN(tst_ColorModel)
#include "tst_colormodel.moc"
