#pragma once

#include <dlgbridge/services/guicontrolleradapter.h>
#include <quickhost/quickhost_export.h>

#include <QPointer>
#include <QWindow>

#include <deque>
#include <vector>

class QQmlEngine;
class QWindow;

namespace dbr::quickhost {

// Builds every dialog as a QuickDialog in one shared engine, and supplies the
// CAD value lists of a drawing application:
// - Colours by index: 0 is by block, 1 to 255 the colour index table of CAD
//   drawings, 256 by layer, and from 257 on the true colours added so far,
//   which every list made afterwards shows too. What a list holds follows the
//   ColorListFlag bits the model passes; rows are named as CAD names them, and
//   by-layer and by-block rows are drawn with a diagonal.
// - Line types of a database, by their names passed through the application's
//   translations; previews paint the dash pattern with QPainter.
// - The standard line weights, named in millimetres.
class DLGBRIDGE_QUICKHOST_EXPORT QuickGuiController : public GuiControllerAdapter
{
public:
    // What the flags of a colour model mean here.
    enum ColorListFlag {
        // By layer and by block head the list, and are accepted.
        WithByLayerByBlock = 1,
        // True colours are accepted, and those added are listed.
        WithTrueColors = 2,
        // All 255 indexed colours instead of the seven named ones.
        FullPalette = 4,
    };
    // The options word for IDialogFactory::chooseColor.
    enum ColorDialogOption {
        DialogByLayerByBlock = 1,
        DialogTrueColor = 2,
        // The selection varies, so no colour is current.
        DialogVaries = 4,
    };

    explicit QuickGuiController(QQmlEngine& engine);
    ~QuickGuiController() override;

    std::unique_ptr<IWxQtDialog> createDialog(const QUrl& url, BaseDialogController* controller, EResizable resizable,
                                              DialogOptions options, wxWindow* parent) override;
    void attachContextDialog(IWxQtDialog* dialog) override;
    void detachContextDialog(IWxQtDialog* dialog) override;

    bool acceptsColor(const OdCmColor& color, int flags) override;
    OdArray<int> colorIndexList(int flags) override;
    std::optional<int> addColor(const OdCmColor& color, int flags) override;
    const OdCmColor& colorAt(int index, int flags) override;
    ColorRowInfo colorRowInfo(const OdCmColor& color, const wxColour& byLayerColor, bool byLayerFlag,
                              int flags) override;
    unsigned int colorDialogOptions(int flags, bool varies) override;
    OdString localLineTypeName(const OdChar* globalName) override;
    // The line types of the database: ByBlock and ByLayer first when
    // withByLayerByBlock, then Continuous, then the others, by name when
    // sorted, else in the database's order. The reference is not used.
    bool lineTypeIds(OdDbDatabase* database, bool withByLayerByBlock, OdDbObjectId* referenceId, bool sorted,
                     LineTypeIdList& result) override;
    // Paints the dash pattern across the middle of a transparent bitmap, in
    // the colour given (the model passes the theme's text colour), so that one
    // repetition takes a quarter of the width; a dot is a point. False for an
    // id that is no line type.
    bool drawLineTypePreview(int width, int height, const wxColour& colour, OdDbObjectId lineType,
                             OdDbObjectId reference, const OdString& localName, wxBitmap& bitmap) override;
    int lineWeightCount() override;
    OdDb::LineWeight lineWeightAt(int index) override;
    OdString lineWeightName(OdDb::LineWeight weight) override;

    // The command context dialogs attached now, in the order they came.
    const std::vector<IWxQtDialog*>& attachedDialogs() const;
    // The window whose right edge attached dialogs line up on, the command
    // line's; without one they stay where their window puts them.
    void setContextDialogAnchor(QWindow* anchor);

    // The index of a colour of the list, or -1 for a true colour not added yet.
    int indexOf(const OdCmColor& color) const;

private:
    void placeBesideAnchor(IWxQtDialog* dialog) const;

    QQmlEngine& m_engine;
    QPointer<QWindow> m_anchor;
    std::vector<IWxQtDialog*> m_attached;
    // By block, the index table and by layer, then the true colours added.
    std::deque<OdCmColor> m_colors;
    const OdCmColor m_none{OdCmColor::kNone};
};

} // namespace dbr::quickhost
