#include <support/objectroles.h>

#include <dlgbridge/cadmodels/linetypemodel.h>

#include <quickhost/quickhost.h>

#include <QSignalSpy>
#include <QTest>

#include <wx/bitmap.h>

#include <ca/CaApp.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <memory>

using namespace dbr;
using namespace dbr::quickhost;

namespace {

// The rows' names, the special rows included.
QString rows(const LineTypeModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.getLineType(row)->lineTypeName);
    return names.join(QLatin1Char(' '));
}

OdDbDatabasePtr drawing(std::initializer_list<const char*> lineTypes)
{
    OdDbDatabasePtr database = OdDbDatabase::createObject();
    for (const char* name : lineTypes)
        database->addLinetype(name, OdString(), {0.5, -0.25});
    return database;
}

LineTypeModelParams paramsOf(OdDbDatabase* database)
{
    return LineTypeModelParams{database, OdDbObjectId::kNull, 0, 1};
}

// Records what the model asks of the controller, and fails on demand.
class WatchingController : public QuickGuiController
{
public:
    using QuickGuiController::QuickGuiController;

    bool lineTypeIds(OdDbDatabase* database, bool withByLayerByBlock, OdDbObjectId* reference, bool sorted,
                     LineTypeIdList& result) override
    {
        asked = QStringLiteral("%1 %2").arg(withByLayerByBlock).arg(sorted);
        return !failLists && QuickGuiController::lineTypeIds(database, withByLayerByBlock, reference, sorted, result);
    }
    bool drawLineTypePreview(int width, int height, const wxColour& colour, OdDbObjectId lineType,
                             OdDbObjectId reference, const OdString& localName, wxBitmap& bitmap) override
    {
        ++drawings;
        previewColour = colour;
        previewName = qut::toQt(localName);
        return QuickGuiController::drawLineTypePreview(width, height, colour, lineType, reference, localName, bitmap);
    }

    bool failLists = false;
    QString asked;
    int drawings = 0;
    wxColour previewColour;
    QString previewName;
};

} // namespace

class tst_LineTypeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rows_areTheDatabasesLineTypesThenLoad();
    void noDatabaseOrNoList_givesNoRowsAtAll();
    void previews_areDrawnOnceForASize();
    void preview_isDrawnInTheThemeColourButNeverBlack();
    void variousRebuild_addsTheVariesRowAndMakesItCurrent();
    void setCurrentIndex_clearsVariousOffTheRowBeforeLast();
    void setCurrentIndexById();
    void resetLineTypes_takesAnUnchangedCountAsUnchanged();
    void rebuild_keepsTheSelectedLineType();
    void model_followsTheCurrentDocument();
    void closingAnotherDocument_changesNothing();
    void closingTheLastDocument_leavesANeutralModel();
    void unregisteredModel_hearsNoDocumentManager();
    void load_cancelled_comesBackToThePreviousRow();
    void load_oneLineType_makesItCurrent();
    void load_severalLineTypes_comesBackToThePreviousRow();
    void showLoadLineTypesDialog_answersTheRowToShow();
    void namesAndIndexes();

private:
    std::unique_ptr<QuickHost> m_host;
    std::unique_ptr<WatchingController> m_gui;
};

void tst_LineTypeModel::init()
{
    m_host = std::make_unique<QuickHost>();
    m_gui = std::make_unique<WatchingController>(m_host->engine());
}

void tst_LineTypeModel::cleanup()
{
    m_gui.reset();
    m_host.reset();
}

void tst_LineTypeModel::rows_areTheDatabasesLineTypesThenLoad()
{
    const OdDbDatabasePtr database = drawing({"Zigzag", "Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);

    // The model passes both options inverted.
    QCOMPARE(m_gui->asked, QStringLiteral("0 1"));
    QCOMPARE(rows(model), QStringLiteral("Continuous Dashed Zigzag Load..."));
    QCOMPARE(model.getLineType(1)->objectId(), database->getLinetypeId("Dashed"));
    QVERIFY(model.getLineType(3)->objectId().isNull());
    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(model.roleNames(), (QHash<int, QByteArray>{{0, "object"}}));
    QCOMPARE(model.data(model.index(2), 0).value<QObject*>(), model.getLineType(2));
    QVERIFY(!model.data(model.index(2), 1).isValid());
    QCOMPARE(model.rowCount(model.index(0)), 0);

    LineTypeModel withSpecials(LineTypeModelParams{database, OdDbObjectId::kNull, 1, 0}, *m_gui,
                               m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    QCOMPARE(rows(withSpecials), QStringLiteral("ByBlock ByLayer Continuous Zigzag Dashed Load..."));
}

void tst_LineTypeModel::noDatabaseOrNoList_givesNoRowsAtAll()
{
    LineTypeModel none(paramsOf(nullptr), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    QCOMPARE(none.rowCount(), 0);
    QVERIFY(!none.resetLineTypes(true));

    m_gui->failLists = true;
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel failing(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    QCOMPARE(failing.rowCount(), 0);
    QVERIFY(!failing.resetLineTypes(true));
    QVERIFY(!failing.getLineType(0));
}

void tst_LineTypeModel::previews_areDrawnOnceForASize()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    auto* dashed = const_cast<LineTypeObject*>(model.getLineType(1));

    const QImage first = dashed->lineTypePreview(80, 10);
    QCOMPARE(first.size(), QSize(80, 10));
    QCOMPARE(m_gui->drawings, 1);
    QCOMPARE(m_gui->previewName, QStringLiteral("Dashed"));
    QCOMPARE(dashed->lineTypePreview(80, 10).cacheKey(), first.cacheKey());
    QCOMPARE(m_gui->drawings, 1);
    // A size below 1 gives the cached preview unchanged.
    QCOMPARE(dashed->lineTypePreview(0, 0).cacheKey(), first.cacheKey());
    QCOMPARE(dashed->lineTypePreview(40, 10).size(), QSize(40, 10));
    QCOMPARE(m_gui->drawings, 2);
    // The special rows have none.
    QVERIFY(const_cast<LineTypeObject*>(model.getLineType(2))->lineTypePreview(80, 10).isNull());

    // A dashed line leaves gaps along its middle; a continuous one doesn't.
    const auto gapsAlongTheMiddle = [](const QImage& image) {
        int gaps = 0;
        for (int x = 4; x < image.width() - 4; ++x)
            gaps += qAlpha(image.pixel(x, image.height() / 2)) == 0;
        return gaps;
    };
    QVERIFY(gapsAlongTheMiddle(first) > 10);
    QCOMPARE(gapsAlongTheMiddle(const_cast<LineTypeObject*>(model.getLineType(0))->lineTypePreview(80, 10)), 0);
}

void tst_LineTypeModel::preview_isDrawnInTheThemeColourButNeverBlack()
{
    const OdDbDatabasePtr database = drawing({});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);

    const QImage preview = model.createBitmap(30, 6, database->getLinetypeContinuousId());

    // The theme's colour 18 is black here.
    QCOMPARE(m_gui->previewColour, wxColour(1, 1, 1, 255));
    QCOMPARE(QColor(preview.pixel(15, 3)), QColor(1, 1, 1));
    QVERIFY(model.createBitmap(30, 6, OdDbObjectId::kNull).isNull());
    QVERIFY(model.createBitmap(30, 6, database->getLayerZeroId()).isNull());
}

void tst_LineTypeModel::variousRebuild_addsTheVariesRowAndMakesItCurrent()
{
    const OdDbDatabasePtr first = drawing({"Dashed"});
    const OdDbDatabasePtr other = drawing({"Dashed", "Hidden", "Dot"});
    LineTypeModel model(paramsOf(first.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    test::attachModelTester(model);
    QSignalSpy current(&model, &LineTypeModel::currentIndexChanged);
    QVERIFY(current.isValid());

    model.setIsVarious(true);
    QCOMPARE(model.rowCount(), 3);
    QVERIFY(model.resetLineTypes(true, other));

    QCOMPARE(rows(model), QStringLiteral("Continuous Dashed Dot Hidden *Varies* Load..."));
    QCOMPARE(model.getCurrentIndex(), 4);
    QCOMPARE(current.count(), 1);
}

void tst_LineTypeModel::setCurrentIndex_clearsVariousOffTheRowBeforeLast()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    QSignalSpy index(&model, &LineTypeModel::currentIndexChanged);
    QSignalSpy lineType(&model, &LineTypeModel::currentLineTypeChanged);
    QVERIFY(index.isValid());
    QVERIFY(lineType.isValid());

    model.setIsVarious(true);
    model.setCurrentIndex(1);
    // The flag survives on the row before last, varies row or not.
    QVERIFY(model.getIsVarious());
    model.setCurrentIndex(0);
    QVERIFY(!model.getIsVarious());
    model.setCurrentIndex(0);
    model.setCurrentIndex(-1);
    model.setCurrentIndex(3);

    QCOMPARE(model.getCurrentIndex(), 0);
    QCOMPARE(index.count(), 3);
    QCOMPARE(lineType.count(), 3);
}

void tst_LineTypeModel::setCurrentIndexById()
{
    const OdDbDatabasePtr database = drawing({"Dashed", "Hidden"});
    const OdDbDatabasePtr other = drawing({"Dashed", "Hidden"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);

    model.setCurrentIndex(database->getLinetypeId("Hidden"));
    QCOMPARE(model.getCurrentIndex(), 2);
    model.setCurrentIndex(other->getLinetypeId("Dashed"));
    QCOMPARE(model.getCurrentIndex(), 2);
    model.setCurrentIndex(OdDbObjectId::kNull);
    QCOMPARE(model.getCurrentIndex(), 2);
    QCOMPARE(model.getLineTypeIndex(database->getLinetypeId("Dashed")), std::optional<int>(1));
    QCOMPARE(model.getLineTypeIndex(other->getLinetypeId("Dashed")), std::nullopt);
    // A varying model goes to its row before last whatever the line type.
    model.setIsVarious(true);
    model.setCurrentIndex(database->getLinetypeId("Dashed"));
    QCOMPARE(model.getCurrentIndex(), 2);
}

void tst_LineTypeModel::resetLineTypes_takesAnUnchangedCountAsUnchanged()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    test::attachModelTester(model);
    QSignalSpy reset(&model, &LineTypeModel::modelReset);
    QVERIFY(reset.isValid());

    OdDbSymbolTableRecord::cast(database->getLinetypeId("Dashed").openObject())->setName("Renamed");
    QVERIFY(!model.resetLineTypes(true));
    QCOMPARE(rows(model), QStringLiteral("Continuous Dashed Load..."));

    // The same database: the same test.
    QVERIFY(!model.resetLineTypes(true, database));
    QCOMPARE(reset.count(), 0);

    database->addLinetype("Hidden", OdString(), {0.25, -0.125});
    QVERIFY(model.resetLineTypes(true));
    QCOMPARE(rows(model), QStringLiteral("Continuous Hidden Renamed Load..."));
    QCOMPARE(reset.count(), 1);
    database->addLinetype("Dot", OdString(), {0, -0.125});
    QVERIFY(model.resetLineTypes(false));
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.rowCount(), 5);
}

void tst_LineTypeModel::rebuild_keepsTheSelectedLineType()
{
    const OdDbDatabasePtr database = drawing({"Hidden"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    model.setCurrentIndex(1);
    QSignalSpy current(&model, &LineTypeModel::currentIndexChanged);
    QVERIFY(current.isValid());

    database->addLinetype("Dashed", OdString(), {0.5, -0.25});
    QVERIFY(model.resetLineTypes(true));

    QCOMPARE(model.getLocalName(model.getCurrentIndex()), QStringLiteral("Hidden"));
    QCOMPARE(model.getCurrentIndex(), 2);
    QCOMPARE(current.count(), 1);
}

void tst_LineTypeModel::model_followsTheCurrentDocument()
{
    OdApDocManager& documents = m_host->documents();
    OdApDocument* first = documents.curDocument();
    LineTypeModel model(paramsOf(ca::curDb()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), RegisterWithDocManager);
    test::attachModelTester(model);
    QCOMPARE(rows(model), QStringLiteral("Continuous Load..."));

    OdApDocument* second = documents.createDocument("Drawing2", drawing({"Dashed", "Hidden"}));
    QCOMPARE(rows(model), QStringLiteral("Continuous Dashed Hidden Load..."));

    documents.activateDocument(first);
    QCOMPARE(rows(model), QStringLiteral("Continuous Load..."));
    documents.activateDocument(second);
    QCOMPARE(model.rowCount(), 4);
}

void tst_LineTypeModel::closingAnotherDocument_changesNothing()
{
    OdApDocManager& documents = m_host->documents();
    OdApDocument* first = documents.curDocument();
    OdApDocument* second = documents.createDocument("Drawing2", drawing({"Dashed"}));
    LineTypeModel model(paramsOf(ca::curDb()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), RegisterWithDocManager);
    model.setCurrentIndex(1);
    QSignalSpy reset(&model, &LineTypeModel::modelReset);
    QVERIFY(reset.isValid());

    documents.closeDocument(first);

    QCOMPARE(reset.count(), 0);
    QCOMPARE(rows(model), QStringLiteral("Continuous Dashed Load..."));
    QCOMPARE(model.getCurrentIndex(), 1);
    QCOMPARE(documents.curDocument(), second);
}

void tst_LineTypeModel::closingTheLastDocument_leavesANeutralModel()
{
    OdApDocManager& documents = m_host->documents();
    documents.createDocument("Drawing2", drawing({"Dashed"}));
    LineTypeModel model(paramsOf(ca::curDb()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), RegisterWithDocManager);
    test::attachModelTester(model);
    const OdDbObjectId dashed = model.getLineType(1)->objectId();
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList{"DOT"}; });

    while (documents.documentCount() > 0)
        documents.closeDocument(documents.curDocument());

    // The databases are gone (ASan watches): every answer is neutral and reads none of them.
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.getCurrentIndex(), -1);
    QVERIFY(!model.getLineType(0));
    QCOMPARE(model.getLocalName(0), QString());
    QCOMPARE(model.getIndexFromLocalName(QStringLiteral("Dashed")), 0);
    QVERIFY(!model.resetLineTypes(true));
    QCOMPARE(model.getLineTypeIndex(dashed), std::nullopt);
    QCOMPARE(model.showLoadLineTypesDialog(3), 3);
    model.setCurrentIndexOrLoad(0);
    model.setCurrentIndex(0);
    QCOMPARE(model.getCurrentIndex(), -1);

    // A new document brings rows back.
    documents.createDocument("Drawing3", drawing({}));
    QCOMPARE(rows(model), QStringLiteral("Continuous Load..."));
}

void tst_LineTypeModel::unregisteredModel_hearsNoDocumentManager()
{
    OdApDocManager& documents = m_host->documents();
    LineTypeModel model(paramsOf(ca::curDb()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    QSignalSpy reset(&model, &LineTypeModel::modelReset);
    QVERIFY(reset.isValid());

    documents.createDocument("Drawing2", drawing({"Dashed"}));
    while (documents.documentCount() > 0)
        documents.closeDocument(documents.curDocument());

    // It holds its database still, so its rows stay readable.
    QCOMPARE(reset.count(), 0);
    QCOMPARE(rows(model), QStringLiteral("Continuous Load..."));
    QVERIFY(!const_cast<LineTypeObject*>(model.getLineType(0))->lineTypePreview(20, 4).isNull());
}

void tst_LineTypeModel::load_cancelled_comesBackToThePreviousRow()
{
    const OdDbDatabasePtr database = drawing({"Dashed", "Hidden"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    model.setCurrentIndex(2);
    QStringList offered;
    m_host->dialogFactory().setupLineTypeLoaderFaker([&offered](const QStringList& names) {
        offered = names;
        return std::nullopt;
    });
    QSignalSpy index(&model, &LineTypeModel::currentIndexChanged);
    QSignalSpy lineType(&model, &LineTypeModel::currentLineTypeChanged);
    QSignalSpy reset(&model, &LineTypeModel::modelReset);
    QVERIFY(index.isValid());
    QVERIFY(lineType.isValid());
    QVERIFY(reset.isValid());

    model.setCurrentIndexOrLoad(3);

    QVERIFY(!offered.contains(QStringLiteral("DASHED")));
    QVERIFY(offered.contains(QStringLiteral("PHANTOM")));
    QCOMPARE(model.getCurrentIndex(), 2);
    QCOMPARE(index.count(), 2);
    QCOMPARE(lineType.count(), 2);
    QCOMPARE(reset.count(), 0);
    QCOMPARE(database->linetypeIds().size(), 5u);
}

void tst_LineTypeModel::load_oneLineType_makesItCurrent()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    test::attachModelTester(model);
    model.setCurrentIndex(1);
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList{"CENTER"}; });

    model.setCurrentIndexOrLoad(2);

    QCOMPARE(rows(model), QStringLiteral("Continuous CENTER Dashed Load..."));
    QCOMPARE(model.getCurrentIndex(), 1);
    const auto center = OdDbLinetypeTableRecord::cast(model.getLineType(1)->objectId().openObject());
    QCOMPARE(center->numDashes(), 4);
    QCOMPARE(center->dashLengthAt(0), 1.25);
}

void tst_LineTypeModel::load_severalLineTypes_comesBackToThePreviousRow()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    model.setCurrentIndex(1);
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) {
        return QStringList{"CENTER", "PHANTOM"};
    });

    model.setCurrentIndexOrLoad(2);

    QCOMPARE(rows(model), QStringLiteral("Continuous CENTER Dashed PHANTOM Load..."));
    QCOMPARE(model.getLocalName(model.getCurrentIndex()), QStringLiteral("Dashed"));
}

void tst_LineTypeModel::showLoadLineTypesDialog_answersTheRowToShow()
{
    const OdDbDatabasePtr database = drawing({"Dashed", "Hidden"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(-1, -1), DoNotRegister);
    model.setCurrentIndex(1);
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return std::nullopt; });
    // A cancel answers the model's own current row.
    QCOMPARE(model.showLoadLineTypesDialog(2), 1);

    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList(); });
    // None loaded: the row noted, found again.
    QCOMPARE(model.showLoadLineTypesDialog(2), 2);
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList{"BORDER"}; });
    qut::QtWindowParent parent;
    QCOMPARE(model.showLoadLineTypesDialog(2, &parent), 1);
    QCOMPARE(model.getLocalName(1), QStringLiteral("BORDER"));
}

void tst_LineTypeModel::namesAndIndexes()
{
    const OdDbDatabasePtr database = drawing({"Dashed"});
    LineTypeModel model(paramsOf(database.get()), *m_gui, m_host->dialogFactory(), QSize(12, 34), DoNotRegister);

    QCOMPARE(model.getIndexFromLocalName(QStringLiteral("Dashed")), 1);
    QCOMPARE(model.getIndexFromLocalName(QStringLiteral("Load...")), 2);
    QCOMPARE(model.getIndexFromLocalName(QStringLiteral("Unknown")), 0);
    QCOMPARE(model.getLocalName(-1), QString());
    QCOMPARE(model.getLocalName(3), QString());
    QCOMPARE(model.property("currentIndex").toInt(), 0);
}

QTEST_MAIN(tst_LineTypeModel)
#include "tst_linetypemodel.moc"
