#include <support/objectroles.h>

#include <dlgbridge/cadmodels/lineweightmodel.h>

#include <quickhost/quickhost.h>

#include <QSignalSpy>
#include <QTest>

#include <oa/SysVars.h>

#include <memory>

using namespace dbr;
using namespace dbr::quickhost;

namespace {

// The rows as "name factor", factors to two places.
QString rows(LineWeightModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const LineWeightObject* object = model.getLineWeight(row);
        texts.append(
            QStringLiteral("%1 %2").arg(object->getLineWeightName()).arg(object->getLineWeightFactor(), 0, 'f', 2));
    }
    return texts.join(QStringLiteral(", "));
}

// A short list of weights, ending on the thickest.
class ShortListController : public QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;

    std::vector<OdDb::LineWeight> weights{OdDb::kLnWtByBlock, OdDb::kLnWtByLayer, OdDb::kLnWt025,
                                          OdDb::kLnWtByLwDefault, OdDb::kLnWt100};
    int asked = 0;

    int lineWeightCount() override { return int(weights.size()); }
    OdDb::LineWeight lineWeightAt(int index) override
    {
        ++asked;
        return index >= 0 && index < int(weights.size()) ? weights[size_t(index)] : OdDb::kLnWtByLwDefault;
    }
};

} // namespace

class tst_LineWeightModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rows_leaveOutTheSpecialWeightsTheParamsHide_data();
    void rows_leaveOutTheSpecialWeightsTheParamsHide();
    void hostsList_endsOnTheThickestWeight();
    void defaultFactor_isReadAtConstruction();
    void emptyList_staysEmptyThroughVaries();
    void varies_isTheLastRowWhileSet();
    void getLineWeightIndex_findsTheFirstRow();
    void onChangeCurrentComboIndex_announcesOnlyANewRow();
    void getLineWeight_outsideTheRowsIsNull();

private:
    std::unique_ptr<QuickHost> m_host;
    std::unique_ptr<ShortListController> m_gui;
};

void tst_LineWeightModel::init()
{
    m_host = std::make_unique<QuickHost>();
    m_gui = std::make_unique<ShortListController>(m_host->engine());
    oa::SysVars::setLWDEFAULT(OdDb::kLnWt025);
}

void tst_LineWeightModel::cleanup()
{
    m_gui.reset();
    m_host.reset();
}

void tst_LineWeightModel::rows_leaveOutTheSpecialWeightsTheParamsHide_data()
{
    QTest::addColumn<bool>("byBlock");
    QTest::addColumn<bool>("byLayer");
    QTest::addColumn<bool>("lwDefault");
    QTest::addColumn<QString>("expected");

    QTest::newRow("all") << true << true << true
                         << "ByBlock 0.00, ByLayer 0.00, 0.25 mm 0.25, Default 0.25, 1.00 mm 1.00";
    QTest::newRow("by layer only") << false << true << false << "ByLayer 0.00, 0.25 mm 0.25, 1.00 mm 1.00";
    QTest::newRow("none") << false << false << false << "0.25 mm 0.25, 1.00 mm 1.00";
}

void tst_LineWeightModel::rows_leaveOutTheSpecialWeightsTheParamsHide()
{
    QFETCH(bool, byBlock);
    QFETCH(bool, byLayer);
    QFETCH(bool, lwDefault);
    QFETCH(QString, expected);

    LineWeightModel model(*m_gui, LineWeightModelParams(byBlock, byLayer, lwDefault), QSize(-1, -1));
    QCOMPARE(rows(model), expected);
    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{0, "object"}}));
    QVERIFY(!model.data(model.index(0), 1).isValid());
}

void tst_LineWeightModel::hostsList_endsOnTheThickestWeight()
{
    LineWeightModel model(m_host->guiController(), LineWeightModelParams(), QSize(-1, -1));

    QCOMPARE(model.rowCount(), 27);
    QCOMPARE(model.getLineWeight(26)->getLineWeightName(), QStringLiteral("2.11 mm"));
    QCOMPARE(model.getLineWeight(26)->getLineWeightFactor(), 1.0);
    QCOMPARE(model.getLineWeight(3)->getLineWeightName(), QStringLiteral("0.00 mm"));
}

void tst_LineWeightModel::defaultFactor_isReadAtConstruction()
{
    oa::SysVars::setLWDEFAULT(OdDb::kLnWt050);
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    oa::SysVars::setLWDEFAULT(OdDb::kLnWt100);

    QCOMPARE(model.getLineWeight(3)->getLineWeightFactor(), 0.5);
}

void tst_LineWeightModel::emptyList_staysEmptyThroughVaries()
{
    m_gui->weights.clear();
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    // The thickest is asked for even so.
    QCOMPARE(m_gui->asked, 1);

    model.setIsVarious(true);
    QVERIFY(model.getIsVarious());
    QCOMPARE(model.rowCount(), 0);
    model.setIsVarious(false);
    QVERIFY(!model.getIsVarious());
    QCOMPARE(model.rowCount(), 0);
}

void tst_LineWeightModel::varies_isTheLastRowWhileSet()
{
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    test::attachModelTester(model);
    QSignalSpy current(&model, &LineWeightModel::currentItemChanged);
    QVERIFY(current.isValid());

    model.setIsVarious(true);
    QCOMPARE(rows(model).section(QStringLiteral(", "), -1), QStringLiteral("*Varies* 0.00"));
    QCOMPARE(model.getCurrentIndex(), 5);
    QCOMPARE(current.count(), 1);

    // Off the varies row, unsetting leaves the current row and says nothing.
    model.onChangeCurrentComboIndex(2);
    model.setIsVarious(false);
    QCOMPARE(model.getCurrentIndex(), 2);
    QCOMPARE(current.count(), 2);
    QCOMPARE(model.rowCount(), 5);

    model.setIsVarious(true);
    model.setIsVarious(false);
    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(current.count(), 4);
}

void tst_LineWeightModel::getLineWeightIndex_findsTheFirstRow()
{
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    model.setIsVarious(true);
    QCOMPARE(model.getLineWeightIndex(OdDb::kLnWtByLwDefault), std::optional<int>(3));
    QCOMPARE(model.getLineWeightIndex(OdDb::kLnWt211), std::nullopt);

    LineWeightModel noDefault(*m_gui, LineWeightModelParams(true, true, false), QSize(-1, -1));
    noDefault.setIsVarious(true);
    QCOMPARE(noDefault.getLineWeightIndex(OdDb::kLnWtByLwDefault), std::optional<int>(4));
}

void tst_LineWeightModel::onChangeCurrentComboIndex_announcesOnlyANewRow()
{
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    QSignalSpy current(&model, &LineWeightModel::currentItemChanged);
    QSignalSpy notify(&model, &LineWeightModel::notifyComboUpdateManager);
    QVERIFY(current.isValid());
    QVERIFY(notify.isValid());

    model.onChangeCurrentComboIndex(0);
    model.onChangeCurrentComboIndex(-1);
    model.onChangeCurrentComboIndex(5);
    QCOMPARE(current.count(), 0);
    model.onChangeCurrentComboIndex(4);
    QCOMPARE(model.getCurrentIndex(), 4);
    QCOMPARE(current.count(), 1);
    QCOMPARE(notify.count(), 1);
}

void tst_LineWeightModel::getLineWeight_outsideTheRowsIsNull()
{
    LineWeightModel model(*m_gui, LineWeightModelParams(), QSize(-1, -1));
    QVERIFY(!model.getLineWeight(-1));
    QVERIFY(!model.getLineWeight(5));
    QCOMPARE(model.getLineWeight(4)->lineWeight(), OdDb::kLnWt100);
}

QTEST_MAIN(tst_LineWeightModel)
#include "tst_lineweightmodel.moc"
