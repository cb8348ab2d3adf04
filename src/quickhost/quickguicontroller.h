#pragma once

#include <dlgbridge/services/guicontrolleradapter.h>
#include <quickhost/quickhost_export.h>

#include <QPointer>
#include <QWindow>

#include <vector>

class QQmlEngine;
class QWindow;

namespace dbr::quickhost {

// Builds every dialog as a QuickDialog in one shared engine.
class DLGBRIDGE_QUICKHOST_EXPORT QuickGuiController : public GuiControllerAdapter
{
public:
    explicit QuickGuiController(QQmlEngine& engine);
    ~QuickGuiController() override;

    std::unique_ptr<IWxQtDialog> createDialog(const QUrl& url, BaseDialogController* controller, EResizable resizable,
                                              DialogOptions options, wxWindow* parent) override;
    void attachContextDialog(IWxQtDialog* dialog) override;
    void detachContextDialog(IWxQtDialog* dialog) override;

    // The CAD value lists come with the value models; until then they are empty.
    bool acceptsColor(const OdCmColor& color, int flags) override;
    OdArray<int> colorIndexList(int flags) override;
    std::optional<int> addColor(const OdCmColor& color, int flags) override;
    const OdCmColor& colorAt(int index, int flags) override;
    ColorRowInfo colorRowInfo(const OdCmColor& color, const wxColour& byLayerColor, bool byLayerFlag,
                              int flags) override;
    unsigned int colorDialogOptions(int flags, bool varies) override;
    OdString localLineTypeName(const OdChar* globalName) override;
    bool lineTypeIds(OdDbDatabase* database, bool optionB, OdDbObjectId* referenceId, bool optionA,
                     LineTypeIdList& result) override;
    bool drawLineTypePreview(int width, int height, const wxColour& background, OdDbObjectId lineType,
                             OdDbObjectId reference, const OdString& localName, wxBitmap& bitmap) override;
    int lineWeightCount() override;
    OdDb::LineWeight lineWeightAt(int index) override;
    OdString lineWeightName(OdDb::LineWeight weight) override;

    // The command context dialogs attached now, in the order they came.
    const std::vector<IWxQtDialog*>& attachedDialogs() const;
    // The window whose right edge attached dialogs line up on, the command
    // line's; without one they stay where their window puts them.
    void setContextDialogAnchor(QWindow* anchor);

private:
    void placeBesideAnchor(IWxQtDialog* dialog) const;

    QQmlEngine& m_engine;
    QPointer<QWindow> m_anchor;
    std::vector<IWxQtDialog*> m_attached;
    OdCmColor m_byLayer;
};

} // namespace dbr::quickhost
