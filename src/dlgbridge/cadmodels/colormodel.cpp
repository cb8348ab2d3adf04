#include "colormodel.h"

#include <dlgbridge/core/translation_p.h>
#include <dlgbridge/services/idialogfactory.h>
#include <dlgbridge/services/iguicontroller.h>

#include <QQmlEngine>

#include <wx/gdicmn.h>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <vector>

namespace dbr {

namespace {

enum Role {
    ObjectRole = 0,
    ModelDataRole = 1,
};

wxColour toWx(const QColor& colour)
{
    return wxColour(static_cast<unsigned char>(colour.red()), static_cast<unsigned char>(colour.green()),
                    static_cast<unsigned char>(colour.blue()), static_cast<unsigned char>(colour.alpha()));
}

std::unique_ptr<ColorObject> specialRow(ColorRowKind kind)
{
    return std::make_unique<ColorObject>(0, QColor(), QString(), false, kind);
}

} // namespace

ColorObject::ColorObject(int index, const QColor& rowColor, const QString& rowName, bool diagonal, ColorRowKind rowKind)
    : colorIndex(index)
    , color(rowColor)
    , name(rowName)
    , drawDiagonal(diagonal)
    , kind(rowKind)
{
    // The model owns its rows. QML takes an object that a method gives in a
    // QVariant (the combos' model.data(...)) as its own to collect unless told.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

ColorObject::~ColorObject() = default;

QString ColorObject::type() const
{
    switch (kind) {
    case VariesRow: return QStringLiteral("varies");
    case LoadRow: return QStringLiteral("load");
    case ColorRow: break;
    }
    return QString();
}

class ColorModelImpl
{
public:
    ColorModelImpl(ColorModel& owner, IGuiController& guiController, IDialogFactory& dialogFactory, int modelFlags,
                   QSize modelSize)
        : q(owner)
        , size(modelSize)
        , gui(&guiController)
        , dialogs(&dialogFactory)
        , flags(modelFlags)
    {}

    int rowCount() const { return static_cast<int>(rows.size()); }
    bool isRow(int index) const { return index >= 0 && index < rowCount(); }
    bool isVaries() const { return rowCount() >= 2 && rows[rows.size() - 2]->kind == VariesRow; }

    std::unique_ptr<ColorObject> colorRow(int index) const
    {
        const ColorRowInfo info = gui->colorRowInfo(gui->colorAt(index, flags), toWx(byLayerColor), byLayerFlag, flags);
        return std::make_unique<ColorObject>(index, qut::toQt(info.color), qut::toQt(info.name), info.drawDiagonal,
                                             ColorRow);
    }

    void rebuildRows(bool varies)
    {
        rows.clear();
        for (int index : gui->colorIndexList(flags))
            rows.push_back(colorRow(index));
        if (varies)
            rows.push_back(specialRow(VariesRow));
        rows.push_back(specialRow(LoadRow));
    }

    void insertColorRow(int index)
    {
        const int trailing = std::min(isVaries() ? 2 : 1, rowCount());
        const int at = rowCount() - trailing;
        q.beginInsertRows(QModelIndex(), at, at);
        rows.insert(rows.begin() + at, colorRow(index));
        q.endInsertRows();
    }

    void makeCurrent(int index)
    {
        currentIndex = index;
        Q_EMIT q.currentItemChanged();
    }

    ColorModel& q;
    std::vector<std::unique_ptr<ColorObject>> rows;
    const QSize size;
    IGuiController* const gui;
    IDialogFactory* const dialogs;
    int flags;
    int currentIndex = -1;
    bool byLayerFlag = false;
    QColor byLayerColor = qut::toQt(*wxStockGDI::GetColour(wxStockGDI::COLOUR_BLACK));
};

ColorModel::ColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags, bool varies, QSize size)
    : d(std::make_unique<ColorModelImpl>(*this, gui, dialogs, flags, size))
{
    Q_EMIT byLayerColorChanged();
    d->rebuildRows(varies);
}

ColorModel::~ColorModel() = default;

int ColorModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rowCount();
}

QVariant ColorModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !d->isRow(index.row()) || (role != ObjectRole && role != ModelDataRole))
        return QVariant();
    return QVariant::fromValue<QObject*>(d->rows[size_t(index.row())].get());
}

QHash<int, QByteArray> ColorModel::roleNames() const
{
    return {{ObjectRole, "object"}, {ModelDataRole, "modelData"}};
}

int ColorModel::getCurrentIndex() const
{
    return d->currentIndex;
}

void ColorModel::setCurrentIndex(int index)
{
    // -1 too goes: as unsigned it is never below the row count.
    if (index < -1 || static_cast<std::uint64_t>(static_cast<std::int64_t>(index)) >= std::uint64_t(d->rowCount()))
        return;
    d->makeCurrent(index);
}

ColorObject* ColorModel::getColorObject(int index) const
{
    return d->isRow(index) ? d->rows[size_t(index)].get() : nullptr;
}

bool ColorModel::isVaries() const
{
    return d->isVaries();
}

void ColorModel::setIsVaries(bool varies)
{
    if (varies == d->isVaries())
        return;
    const int rows = d->rowCount();
    if (varies) {
        if (rows == 0)
            return;
        beginInsertRows(QModelIndex(), rows - 1, rows - 1);
        d->rows.insert(d->rows.end() - 1, specialRow(VariesRow));
        endInsertRows();
        d->makeCurrent(d->rowCount() - 2);
        return;
    }
    // The current row may now be the load row; that is left to the caller.
    beginRemoveRows(QModelIndex(), rows - 2, rows - 2);
    d->rows.erase(d->rows.end() - 2);
    endRemoveRows();
}

QColor ColorModel::byLayerColor() const
{
    return d->byLayerColor;
}

QSize ColorModel::size() const
{
    return d->size;
}

QString ColorModel::tooltip() const
{
    return translated("Color Control");
}

IGuiController& ColorModel::gui()
{
    return *d->gui;
}

int ColorModel::flags() const
{
    return d->flags;
}

bool ColorModel::hasFlag(int mask) const
{
    return (d->flags & mask) != 0;
}

void ColorModel::setFlag(int mask)
{
    d->flags |= mask;
}

void ColorModel::clearFlag(int mask)
{
    d->flags &= ~mask;
}

int ColorModel::getOrAddColor(const OdCmColor& color)
{
    const bool variedBefore = d->isVaries();
    int result = 0;
    if (d->gui->acceptsColor(color, d->flags)) {
        int candidate = -1;
        for (int row = 0; row < d->rowCount(); ++row) {
            // The special rows take part, as index 0.
            if (d->gui->colorAt(d->rows[size_t(row)]->colorIndex, d->flags) == color) {
                candidate = row;
                break;
            }
        }
        if (candidate < 0) {
            if (const std::optional<int> added = d->gui->addColor(color, d->flags)) {
                d->insertColorRow(*added);
                candidate = d->rowCount() - 1;
            } else {
                candidate = 0;
            }
        }
        if (variedBefore)
            candidate = d->rowCount();
        // A fresh colour comes to its own row, just above the load row, and a
        // match on the load row falls back on the row before it.
        if (candidate >= 1 && candidate == d->rowCount() - 1)
            --candidate;
        result = candidate;
    }
    // A varying model answers with its varies row, whatever the colour.
    if (d->rowCount() >= 2 && d->isVaries())
        result = d->rowCount() - 2;
    return result;
}

void ColorModel::setColor(const OdCmColor& color)
{
    beginResetModel();
    const int row = getOrAddColor(color);
    endResetModel();
    if (d->isRow(row))
        d->makeCurrent(row);
}

void ColorModel::setByLayer(const OdDbObjectId& layerId)
{
    wxColour colour = toWx(d->byLayerColor);
    colour.SetRGB(0);
    d->byLayerFlag = false;
    const OdDbLayerTableRecordPtr layer = !layerId.isNull() && layerId.isValid() && !layerId.isErased()
                                              ? OdDbLayerTableRecord::cast(layerId.openObject())
                                              : nullptr;
    if (layer) {
        OdCmColor layerColor = layer->color();
        const OdDbDatabase* database = layer->database();
        if (database && !database->getTILEMODE()) {
            const OdDbBlockTableRecordPtr block =
                OdDbBlockTableRecord::cast(database->getActiveLayoutBTRId().openObject());
            const OdDbLayoutPtr layout = block ? OdDbLayout::cast(block->getLayoutId().openObject()) : nullptr;
            const OdDbViewportPtr viewport =
                layout ? OdDbViewport::cast(layout->activeViewportId().openObject()) : nullptr;
            if (viewport)
                layerColor = layer->color(viewport->objectId(), d->byLayerFlag);
        }
        colour.Set(layerColor.red(), layerColor.green(), layerColor.blue(), wxALPHA_OPAQUE);
    }
    d->byLayerColor = qut::toQt(colour);
    // Whatever the viewport said, the flag is clear afterwards.
    d->byLayerFlag = false;
    Q_EMIT byLayerColorChanged();
}

OdCmColor ColorModel::color(int index) const
{
    if (hasFlag(WhiteAtRowZero) && index == 0) {
        OdCmColor white;
        white.setRGB(255, 255, 255);
        return white;
    }
    if (d->isRow(index))
        return d->gui->colorAt(d->rows[size_t(index)]->colorIndex, d->flags);
    return OdCmColor(OdCmColor::kNone);
}

std::uint32_t ColorModel::getColor(int index) const
{
    return d->isRow(index) ? color(index).color() : 0;
}

std::optional<int> ColorModel::showColorDialog(int currentIndex)
{
    const OdCmColor current = color(currentIndex);
    const unsigned int options = d->gui->colorDialogOptions(d->flags, isVaries());
    const std::optional<OdCmColor> chosen = d->dialogs->chooseColor(nullptr, current, options);
    if (!chosen)
        return std::nullopt;
    setIsVaries(false);
    return getOrAddColor(*chosen);
}

int ColorModel::doShowColorDialog(int currentIndex)
{
    return showColorDialog(currentIndex).value_or(currentIndex);
}

void ColorModel::onClicked(int index)
{
    if (!d->isRow(index))
        return;
    const int old = d->currentIndex;
    d->makeCurrent(index);
    int final = index;
    if (index == d->rowCount() - 1) {
        const std::optional<int> chosen = showColorDialog(old);
        if (!chosen) {
            if (d->isRow(old))
                d->makeCurrent(old);
            return;
        }
        if (d->isRow(*chosen))
            d->makeCurrent(*chosen);
        final = *chosen;
    } else if (index == old) {
        return;
    }
    Q_EMIT colorChanged(final);
}

} // namespace dbr
