#include "quickguicontroller.h"

#include "quickdialog.h"

#include <QPainter>
#include <QQuickWindow>

#include <wx/bitmap.h>
#include <wx/image.h>
#include <wx/intl.h>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace dbr::quickhost {

namespace {

constexpr int byBlockIndex = 0;
constexpr int byLayerIndex = 256;
constexpr int firstTrueColor = 257;
constexpr int namedColors = 7;
constexpr int paletteSize = 255;
// One repetition of a dash pattern takes this part of a preview's width.
constexpr int previewRepetitions = 4;

const char* const colorNames[namedColors] = {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};

} // namespace

QuickGuiController::QuickGuiController(QQmlEngine& engine)
    : m_engine(engine)
{
    for (int index = byBlockIndex; index <= byLayerIndex; ++index) {
        OdCmColor color;
        color.setColorIndex(std::uint16_t(index));
        m_colors.push_back(color);
    }
}

QuickGuiController::~QuickGuiController() = default;

std::unique_ptr<IWxQtDialog> QuickGuiController::createDialog(const QUrl& url, BaseDialogController* controller,
                                                              EResizable, DialogOptions, wxWindow*)
{
    return std::make_unique<QuickDialog>(m_engine, url, controller);
}

namespace {
constexpr int contextDialogGap = 8;
}

void QuickGuiController::attachContextDialog(IWxQtDialog* dialog)
{
    if (!dialog)
        return;
    placeBesideAnchor(dialog);
    m_attached.push_back(dialog);
}

void QuickGuiController::detachContextDialog(IWxQtDialog* dialog)
{
    m_attached.erase(std::remove(m_attached.begin(), m_attached.end(), dialog), m_attached.end());
    if (auto* quickDialog = dynamic_cast<QuickDialog*>(dialog))
        quickDialog->window().setTransientParent(nullptr);
}

void QuickGuiController::setContextDialogAnchor(QWindow* anchor)
{
    m_anchor = anchor;
}

void QuickGuiController::placeBesideAnchor(IWxQtDialog* dialog) const
{
    auto* quickDialog = dynamic_cast<QuickDialog*>(dialog);
    if (!quickDialog || !m_anchor)
        return;
    // Stacked down the anchor's right edge, below those attached before.
    int top = m_anchor->y();
    for (IWxQtDialog* attached : m_attached) {
        if (auto* above = dynamic_cast<QuickDialog*>(attached))
            top = std::max(top, above->window().geometry().bottom() + contextDialogGap);
    }
    QQuickWindow& window = quickDialog->window();
    window.setTransientParent(m_anchor);
    window.setFlag(Qt::Tool);
    window.setPosition(m_anchor->geometry().right() + contextDialogGap, top);
}

namespace {

wxString applicationText(const char* text)
{
    return wxGetTranslation(wxString::FromUTF8(text));
}

bool sameName(const OdString& a, const char* b)
{
    return QString::compare(qut::toQt(a), QLatin1String(b), Qt::CaseInsensitive) == 0;
}

OdString nameOf(const OdDbObjectId& id)
{
    const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(id.openObject());
    return record ? record->getName() : OdString();
}

// The wx image of a Qt image, with its alpha, filled through its buffers.
wxImage toWxImage(const QImage& source)
{
    const QImage image = source.convertToFormat(QImage::Format_ARGB32);
    const int width = image.width();
    const int height = image.height();
    // wxImage takes both buffers, and frees them with free().
    auto* rgb = static_cast<unsigned char*>(malloc(size_t(width) * size_t(height) * 3));
    auto* alpha = static_cast<unsigned char*>(malloc(size_t(width) * size_t(height)));
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            const size_t pixel = size_t(y) * size_t(width) + size_t(x);
            rgb[3 * pixel] = uchar(qRed(line[x]));
            rgb[3 * pixel + 1] = uchar(qGreen(line[x]));
            rgb[3 * pixel + 2] = uchar(qBlue(line[x]));
            alpha[pixel] = uchar(qAlpha(line[x]));
        }
    }
    return wxImage(width, height, rgb, alpha);
}

void paintPattern(QPainter& painter, const OdDbLinetypeTableRecord& lineType, const QRectF& area)
{
    const qreal y = area.center().y();
    const qreal pattern = lineType.patternLength();
    if (lineType.numDashes() == 0 || pattern <= 0) {
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        return;
    }
    const qreal scale = area.width() / previewRepetitions / pattern;
    qreal x = area.left();
    for (int dash = 0; x < area.right(); dash = (dash + 1) % lineType.numDashes()) {
        const qreal length = lineType.dashLengthAt(dash) * scale;
        if (length > 0)
            painter.drawLine(QPointF(x, y), QPointF(std::min(x + length, area.right()), y));
        else if (length == 0)
            painter.drawPoint(QPointF(x, y));
        x += std::abs(length);
    }
}

} // namespace

bool QuickGuiController::acceptsColor(const OdCmColor& color, int flags)
{
    switch (color.colorMethod()) {
    case OdCmColor::kByLayer:
    case OdCmColor::kByBlock: return (flags & WithByLayerByBlock) != 0;
    case OdCmColor::kByACI: return color.colorIndex() >= 1 && color.colorIndex() <= paletteSize;
    case OdCmColor::kByColor: return (flags & WithTrueColors) != 0;
    default: return false;
    }
}

OdArray<int> QuickGuiController::colorIndexList(int flags)
{
    OdArray<int> list;
    if (flags & WithByLayerByBlock) {
        list.append(byLayerIndex);
        list.append(byBlockIndex);
    }
    const int indexed = flags & FullPalette ? paletteSize : namedColors;
    for (int index = 1; index <= indexed; ++index)
        list.append(index);
    if (flags & WithTrueColors) {
        for (int index = firstTrueColor; index < int(m_colors.size()); ++index)
            list.append(index);
    }
    return list;
}

int QuickGuiController::indexOf(const OdCmColor& color) const
{
    switch (color.colorMethod()) {
    case OdCmColor::kByLayer: return byLayerIndex;
    case OdCmColor::kByBlock: return byBlockIndex;
    case OdCmColor::kByACI: return color.colorIndex() <= paletteSize ? color.colorIndex() : -1;
    default: break;
    }
    const auto found = std::find(m_colors.begin() + firstTrueColor, m_colors.end(), color);
    return found == m_colors.end() ? -1 : int(found - m_colors.begin());
}

std::optional<int> QuickGuiController::addColor(const OdCmColor& color, int flags)
{
    if (!acceptsColor(color, flags))
        return std::nullopt;
    const int known = indexOf(color);
    if (known >= 0)
        return known;
    m_colors.push_back(color);
    return int(m_colors.size()) - 1;
}

const OdCmColor& QuickGuiController::colorAt(int index, int)
{
    return index >= 0 && index < int(m_colors.size()) ? m_colors[size_t(index)] : m_none;
}

ColorRowInfo QuickGuiController::colorRowInfo(const OdCmColor& color, const wxColour& byLayerColor, bool, int)
{
    switch (color.colorMethod()) {
    case OdCmColor::kByLayer: return {true, applicationText("ByLayer"), byLayerColor};
    case OdCmColor::kByBlock: return {true, applicationText("ByBlock"), *wxWHITE};
    case OdCmColor::kByACI: {
        const int index = color.colorIndex();
        const wxString name = index <= namedColors ? applicationText(colorNames[index - 1])
                                                   : wxString::Format(applicationText("Color %d"), index);
        return {false, name, wxColour(color.red(), color.green(), color.blue())};
    }
    case OdCmColor::kByColor:
        return {false, wxString::Format("%d,%d,%d", color.red(), color.green(), color.blue()),
                wxColour(color.red(), color.green(), color.blue())};
    default: return {};
    }
}

unsigned int QuickGuiController::colorDialogOptions(int flags, bool varies)
{
    unsigned int options = 0;
    if (flags & WithByLayerByBlock)
        options |= DialogByLayerByBlock;
    if (flags & WithTrueColors)
        options |= DialogTrueColor;
    if (varies)
        options |= DialogVaries;
    return options;
}

OdString QuickGuiController::localLineTypeName(const OdChar* globalName)
{
    return qut::odFromWx(wxGetTranslation(wxString(globalName)));
}

bool QuickGuiController::lineTypeIds(OdDbDatabase* database, bool withByLayerByBlock, OdDbObjectId*, bool sorted,
                                     LineTypeIdList& result)
{
    if (!database)
        return false;
    std::vector<OdDbObjectId> heads;
    std::vector<std::pair<QString, OdDbObjectId>> others;
    for (const OdDbObjectId& id : database->linetypeIds()) {
        const OdString name = nameOf(id);
        if (sameName(name, "ByBlock") || sameName(name, "ByLayer")) {
            if (withByLayerByBlock)
                heads.push_back(id);
        } else if (sameName(name, "Continuous")) {
            heads.push_back(id);
        } else {
            others.emplace_back(qut::toQt(name), id);
        }
    }
    if (sorted) {
        std::stable_sort(others.begin(), others.end(), [](const auto& a, const auto& b) {
            return QString::compare(a.first, b.first, Qt::CaseInsensitive) < 0;
        });
    }
    result.ids.clear();
    for (const OdDbObjectId& id : heads)
        result.ids.append(id);
    for (const auto& other : others)
        result.ids.append(other.second);
    // The ids stay readable while the caller holds the list.
    result.keepAlive = std::make_shared<OdDbDatabasePtr>(database);
    return true;
}

bool QuickGuiController::drawLineTypePreview(int width, int height, const wxColour& colour, OdDbObjectId lineType,
                                             OdDbObjectId, const OdString&, wxBitmap& bitmap)
{
    const OdDbLinetypeTableRecordPtr record = OdDbLinetypeTableRecord::cast(lineType.openObject());
    if (!record || width < 1 || height < 1)
        return false;
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QPen pen(qut::toQt(colour), std::max(1, height / 8), Qt::SolidLine, Qt::FlatCap);
    painter.setPen(pen);
    paintPattern(painter, *record, QRectF(2, 0, width - 4, height));
    painter.end();
    bitmap = wxBitmap(toWxImage(image));
    return bitmap.IsOk();
}

namespace {

// The standard weights, thinnest to thickest after the three special ones.
constexpr OdDb::LineWeight lineWeights[] = {
    OdDb::kLnWtByLayer, OdDb::kLnWtByBlock, OdDb::kLnWtByLwDefault, OdDb::kLnWt000, OdDb::kLnWt005, OdDb::kLnWt009,
    OdDb::kLnWt013,     OdDb::kLnWt015,     OdDb::kLnWt018,         OdDb::kLnWt020, OdDb::kLnWt025, OdDb::kLnWt030,
    OdDb::kLnWt035,     OdDb::kLnWt040,     OdDb::kLnWt050,         OdDb::kLnWt053, OdDb::kLnWt060, OdDb::kLnWt070,
    OdDb::kLnWt080,     OdDb::kLnWt090,     OdDb::kLnWt100,         OdDb::kLnWt106, OdDb::kLnWt120, OdDb::kLnWt140,
    OdDb::kLnWt158,     OdDb::kLnWt200,     OdDb::kLnWt211,
};

} // namespace

int QuickGuiController::lineWeightCount()
{
    return int(std::size(lineWeights));
}

OdDb::LineWeight QuickGuiController::lineWeightAt(int index)
{
    return index >= 0 && index < lineWeightCount() ? lineWeights[index] : OdDb::kLnWtByLwDefault;
}

OdString QuickGuiController::lineWeightName(OdDb::LineWeight weight)
{
    switch (weight) {
    case OdDb::kLnWtByLayer: return qut::odFromWx(applicationText("ByLayer"));
    case OdDb::kLnWtByBlock: return qut::odFromWx(applicationText("ByBlock"));
    case OdDb::kLnWtByLwDefault: return qut::odFromWx(applicationText("Default"));
    default: return qut::odFromQt(QStringLiteral("%1 mm").arg(weight / 100.0, 0, 'f', 2));
    }
}

const std::vector<IWxQtDialog*>& QuickGuiController::attachedDialogs() const
{
    return m_attached;
}

} // namespace dbr::quickhost
