#include "quickguicontroller.h"

#include "quickdialog.h"

#include <QQuickWindow>

#include <algorithm>

namespace dbr::quickhost {

QuickGuiController::QuickGuiController(QQmlEngine& engine)
    : m_engine(engine)
{}

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

bool QuickGuiController::acceptsColor(const OdCmColor&, int)
{
    return false;
}

OdArray<int> QuickGuiController::colorIndexList(int)
{
    return {};
}

std::optional<int> QuickGuiController::addColor(const OdCmColor&, int)
{
    return std::nullopt;
}

const OdCmColor& QuickGuiController::colorAt(int, int)
{
    return m_byLayer;
}

ColorRowInfo QuickGuiController::colorRowInfo(const OdCmColor&, const wxColour&, bool, int)
{
    return {};
}

unsigned int QuickGuiController::colorDialogOptions(int, bool)
{
    return 0;
}

OdString QuickGuiController::localLineTypeName(const OdChar* globalName)
{
    return OdString(globalName);
}

bool QuickGuiController::lineTypeIds(OdDbDatabase*, bool, OdDbObjectId*, bool, LineTypeIdList&)
{
    return false;
}

bool QuickGuiController::drawLineTypePreview(int, int, const wxColour&, OdDbObjectId, OdDbObjectId, const OdString&,
                                             wxBitmap&)
{
    return false;
}

int QuickGuiController::lineWeightCount()
{
    return 0;
}

OdDb::LineWeight QuickGuiController::lineWeightAt(int)
{
    return OdDb::kLnWtByLwDefault;
}

OdString QuickGuiController::lineWeightName(OdDb::LineWeight)
{
    return OdString();
}

const std::vector<IWxQtDialog*>& QuickGuiController::attachedDialogs() const
{
    return m_attached;
}

} // namespace dbr::quickhost
