#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/services/iwxqtdialog.h>

#include <wx/colour.h>
#include <wx/string.h>

#include <oda/OdArray.h>
#include <oda/OdCmColor.h>
#include <oda/OdDb.h>
#include <oda/OdDbDatabase.h>
#include <oda/OdDbObjectId.h>
#include <oda/OdString.h>

#include <memory>
#include <optional>

class QUrl;
class wxBitmap;
class wxWindow;

namespace dbr {

class BaseDialogController;

// How a colour row is drawn.
struct ColorRowInfo
{
    bool drawDiagonal = false;
    wxString name;
    wxColour color;
};

// The line types to list, and whatever keeps them readable until the caller
// releases it.
struct LineTypeIdList
{
    OdArray<OdDbObjectId> ids;
    std::shared_ptr<const void> keepAlive;
};

// What only the application knows: it builds the real dialogs and supplies the
// colour, line type and line weight lists of the CAD value models. The places
// marked as reserved are not used by this library; they keep the interface's
// shape for the application's own use.
class DLGBRIDGE_EXPORT IGuiController
{
public:
    IGuiController() = default;
    IGuiController(const IGuiController&) = default;
    IGuiController& operator=(const IGuiController&) = default;
    virtual ~IGuiController();

    // The controller stays the caller's; the result may be null.
    virtual std::unique_ptr<IWxQtDialog> createDialog(const QUrl& url, BaseDialogController* controller,
                                                      EResizable resizable, DialogOptions options,
                                                      wxWindow* parent) = 0;
    virtual void reserved3() = 0;
    virtual void reserved4() = 0;
    virtual void reserved5() = 0;
    virtual void attachContextDialog(IWxQtDialog* dialog) = 0;
    virtual void detachContextDialog(IWxQtDialog* dialog) = 0;
    virtual void reserved8() = 0;
    virtual void reserved9() = 0;
    virtual void reserved10() = 0;
    virtual void reserved11() = 0;
    virtual void reserved12() = 0;

    virtual bool acceptsColor(const OdCmColor& color, int flags) = 0;
    virtual OdArray<int> colorIndexList(int flags) = 0;
    virtual std::optional<int> addColor(const OdCmColor& color, int flags) = 0;
    virtual const OdCmColor& colorAt(int index, int flags) = 0;
    virtual ColorRowInfo colorRowInfo(const OdCmColor& color, const wxColour& byLayerColor, bool byLayerFlag,
                                      int flags) = 0;
    virtual unsigned int colorDialogOptions(int flags, bool varies) = 0;

    virtual OdString localLineTypeName(const OdChar* globalName) = 0;
    virtual bool lineTypeIds(OdDbDatabase* database, bool optionB, OdDbObjectId* referenceId, bool optionA,
                             LineTypeIdList& result) = 0;
    virtual bool drawLineTypePreview(int width, int height, const wxColour& background, OdDbObjectId lineType,
                                     OdDbObjectId reference, const OdString& localName, wxBitmap& bitmap) = 0;

    virtual int lineWeightCount() = 0;
    virtual OdDb::LineWeight lineWeightAt(int index) = 0;
    virtual OdString lineWeightName(OdDb::LineWeight weight) = 0;

    virtual void reserved25() = 0;
    virtual void reserved26() = 0;
    virtual void reserved27() = 0;
    virtual void reserved28() = 0;
    virtual void reserved29() = 0;
    virtual void reserved30() = 0;
    virtual void reserved31() = 0;
    virtual void reserved32() = 0;
    virtual void reserved33() = 0;
};

} // namespace dbr
