// The CAD value models against a QStandardItemModel given the same rows:
// building a colour model over the whole index palette and a line type model
// over a drawing's line types, and drawing the line type previews of every
// row, the first time and from the cache.
#include "support/benchmain.h"

#include <dlgbridge/cadmodels/colormodel.h>
#include <dlgbridge/cadmodels/linetypemodel.h>

#include <quickhost/quickhost.h>

#include <QPainter>
#include <QStandardItemModel>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>

namespace dbr::bench {

namespace {

constexpr int fullPalette = quickhost::QuickGuiController::WithByLayerByBlock |
                            quickhost::QuickGuiController::WithTrueColors | quickhost::QuickGuiController::FullPalette;
constexpr int previewWidth = 80;
constexpr int previewHeight = 10;

quickhost::QuickHost& host()
{
    static quickhost::QuickHost instance;
    return instance;
}

// A drawing with that many line types besides its own three, each a dash pattern of its own.
OdDbDatabase& drawingWith(int lineTypes)
{
    static std::map<int, OdDbDatabasePtr> drawings;
    OdDbDatabasePtr& database = drawings[lineTypes];
    if (!database) {
        database = OdDbDatabase::createObject();
        for (int i = 0; i < lineTypes; ++i) {
            const double dash = 0.1 + (i % 17) * 0.05;
            database->addLinetype(qut::odFromQt(QStringLiteral("LT%1").arg(i, 4, 10, QLatin1Char('0'))), OdString(),
                                  {dash, -0.1, 0, -0.1});
        }
    }
    return *database;
}

LineTypeModelParams paramsOf(OdDbDatabase& database)
{
    return LineTypeModelParams{&database, OdDbObjectId::kNull, 0, 1};
}

// The rows a plain Qt model would hold for the colours: name, colour and index.
void appendColorRows(QStandardItemModel& model)
{
    quickhost::QuickGuiController& gui = host().guiController();
    for (int index : gui.colorIndexList(fullPalette)) {
        const ColorRowInfo info = gui.colorRowInfo(gui.colorAt(index, fullPalette), *wxBLACK, false, fullPalette);
        auto* item = new QStandardItem(qut::toQt(info.name));
        item->setData(qut::toQt(info.color), Qt::DecorationRole);
        item->setData(index, Qt::UserRole);
        item->setData(info.drawDiagonal, Qt::UserRole + 1);
        model.appendRow(item);
    }
    model.appendRow(new QStandardItem(QStringLiteral("Select Colors...")));
}

void buildColorsWithOurs(benchmark::State& state)
{
    for (auto _ : state) {
        ColorModel model(host().guiController(), host().dialogFactory(), fullPalette, false, QSize(-1, -1));
        benchmark::DoNotOptimize(model.rowCount());
    }
}

void buildColorsWithQt(benchmark::State& state)
{
    for (auto _ : state) {
        QStandardItemModel model;
        appendColorRows(model);
        benchmark::DoNotOptimize(model.rowCount());
    }
}

void buildLineTypesWithOurs(benchmark::State& state, int count)
{
    OdDbDatabase& database = drawingWith(count);
    for (auto _ : state) {
        LineTypeModel model(paramsOf(database), host().guiController(), host().dialogFactory(), QSize(-1, -1),
                            DoNotRegister);
        benchmark::DoNotOptimize(model.rowCount());
    }
}

// The same rows from the same list: the local name of each line type, and its id.
void buildLineTypesWithQt(benchmark::State& state, int count)
{
    OdDbDatabase& database = drawingWith(count);
    quickhost::QuickGuiController& gui = host().guiController();
    for (auto _ : state) {
        QStandardItemModel model;
        LineTypeIdList list;
        gui.lineTypeIds(&database, false, nullptr, true, list);
        for (const OdDbObjectId& id : list.ids) {
            const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(id.openObject());
            auto* item = new QStandardItem(qut::toQt(gui.localLineTypeName(record->getName().c_str())));
            item->setData(QVariant::fromValue<qulonglong>(id.handle()), Qt::UserRole);
            model.appendRow(item);
        }
        model.appendRow(new QStandardItem(QStringLiteral("Load...")));
        benchmark::DoNotOptimize(model.rowCount());
    }
}

// Plain Qt's preview: the dash pattern painted straight into a QImage.
QImage paintPreview(const OdDbLinetypeTableRecord& lineType)
{
    QImage image(previewWidth, previewHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::FlatCap));
    const qreal y = previewHeight / 2.0;
    const qreal pattern = lineType.patternLength();
    if (lineType.numDashes() == 0 || pattern <= 0) {
        painter.drawLine(QPointF(2, y), QPointF(previewWidth - 2, y));
        return image;
    }
    const qreal scale = (previewWidth - 4) / 4.0 / pattern;
    qreal x = 2;
    for (int dash = 0; x < previewWidth - 2; dash = (dash + 1) % lineType.numDashes()) {
        const qreal length = lineType.dashLengthAt(dash) * scale;
        if (length > 0)
            painter.drawLine(QPointF(x, y), QPointF(std::min(x + length, previewWidth - 2.0), y));
        else if (length == 0)
            painter.drawPoint(QPointF(x, y));
        x += std::abs(length);
    }
    return image;
}

void previewsFirstWithOurs(benchmark::State& state, int count)
{
    OdDbDatabase& database = drawingWith(count);
    for (auto _ : state) {
        state.PauseTiming();
        auto model = std::make_unique<LineTypeModel>(paramsOf(database), host().guiController(), host().dialogFactory(),
                                                     QSize(-1, -1), DoNotRegister);
        state.ResumeTiming();
        for (int row = 0; row < model->rowCount(); ++row)
            benchmark::DoNotOptimize(
                const_cast<LineTypeObject*>(model->getLineType(row))->lineTypePreview(previewWidth, previewHeight));
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
}

void previewsFirstWithQt(benchmark::State& state, int count)
{
    OdDbDatabase& database = drawingWith(count);
    for (auto _ : state) {
        for (const OdDbObjectId& id : database.linetypeIds()) {
            const OdDbLinetypeTableRecordPtr record = OdDbLinetypeTableRecord::cast(id.openObject());
            benchmark::DoNotOptimize(paintPreview(*record));
        }
    }
}

void previewsCachedWithOurs(benchmark::State& state, int count)
{
    LineTypeModel model(paramsOf(drawingWith(count)), host().guiController(), host().dialogFactory(), QSize(-1, -1),
                        DoNotRegister);
    for (int row = 0; row < model.rowCount(); ++row)
        const_cast<LineTypeObject*>(model.getLineType(row))->lineTypePreview(previewWidth, previewHeight);
    for (auto _ : state) {
        for (int row = 0; row < model.rowCount(); ++row)
            benchmark::DoNotOptimize(
                const_cast<LineTypeObject*>(model.getLineType(row))->lineTypePreview(previewWidth, previewHeight));
    }
}

// The cache of plain Qt: the images kept in the rows, read back by role.
void previewsCachedWithQt(benchmark::State& state, int count)
{
    QStandardItemModel model;
    for (const OdDbObjectId& id : drawingWith(count).linetypeIds()) {
        auto* item = new QStandardItem;
        item->setData(paintPreview(*OdDbLinetypeTableRecord::cast(id.openObject())), Qt::DecorationRole);
        model.appendRow(item);
    }
    model.appendRow(new QStandardItem(QStringLiteral("Load...")));
    for (auto _ : state) {
        for (int row = 0; row < model.rowCount(); ++row)
            benchmark::DoNotOptimize(model.data(model.index(row, 0), Qt::DecorationRole).value<QImage>());
    }
}

} // namespace

void registerBenchmarks()
{
    registerPair("buildColorModel/fullPalette", buildColorsWithOurs, buildColorsWithQt);
    for (int count : {50, 500}) {
        const std::string size = "/" + std::to_string(count);
        registerPair("buildLineTypeModel" + size, buildLineTypesWithOurs, buildLineTypesWithQt, count);
        registerPair("previews/first" + size, previewsFirstWithOurs, previewsFirstWithQt, count);
        registerPair("previews/cached" + size, previewsCachedWithOurs, previewsCachedWithQt, count);
    }
}

} // namespace dbr::bench
