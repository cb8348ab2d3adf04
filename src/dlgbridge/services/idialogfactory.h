#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <wx/colour.h>
#include <wx/string.h>

#include <oda/OdArray.h>
#include <oda/OdCmColor.h>
#include <oda/OdString.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class OdDbDatabase;
class wxWindow;

namespace dbr {

// One button of a message box: its label, translated and with its "&" mark,
// and what the box returns when it is pressed.
struct MessageButtonInfo
{
    OdString label;
    std::int32_t code = 0;
};

// The buttons of a message box. Their codes are wx's button flags (wxOK,
// wxYES, wxNO, wxCANCEL), not the wxID_ values dialogs return.
enum MessageButtonStyle : std::int32_t {
    Ok = 0,
    OkCancel = 1,
    YesNo = 2,
    YesNoCancel = 3,
};

enum EMessageStyle : std::int32_t {
    Info = 0,
    Warning = 1,
    Error = 3,
};

// Answers a message box instead of showing it: given the title, the message,
// the EMessageStyle as int and the parent, returns the code of the button "pressed".
using MessageBoxFaker = std::function<int(const wxString&, const wxString&, int, wxWindow*)>;

// The application's standard dialogs: message boxes, the colour dialog and the
// load-line-types dialog. The virtual operations keep the application's slot
// order; the ones marked as reserved are not used by this library. The
// non-virtual layer turns simple arguments into one call of the abstract ones.
class DLGBRIDGE_EXPORT IDialogFactory
{
public:
    IDialogFactory() = default;
    IDialogFactory(const IDialogFactory&) = default;
    IDialogFactory& operator=(const IDialogFactory&) = default;
    virtual ~IDialogFactory();

    // The base has no boxes to fake, so it lets the function go.
    virtual void setupMessageBoxFaker(MessageBoxFaker faker);
    virtual void unsetMessageBoxFaker();
    virtual void reserved4() = 0;
    // Blocks until the user answers; returns the pressed button's code and a
    // flag whose meaning, like that of extraText, is the implementation's.
    virtual std::pair<int, bool> showMessage(OdString title, OdString message, OdString extraText, EMessageStyle style,
                                             const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const = 0;
    virtual void reserved6() = 0;
    // No value means the user cancelled.
    virtual std::optional<OdCmColor> chooseColor(wxWindow* parent, const OdCmColor& current,
                                                 unsigned int options) const = 0;
    virtual void reserved8() = 0;
    virtual void reserved9() = 0;
    virtual void reserved10() = 0;
    virtual void reserved11() = 0;
    virtual void reserved12() = 0;
    virtual void reserved13() = 0;
    virtual void reserved14() = 0;
    virtual void reserved15() = 0;
    virtual void reserved16() = 0;
    virtual void reserved17() = 0;
    virtual void reserved18() = 0;
    virtual void reserved19() = 0;
    virtual void reserved20() = 0;
    virtual void reserved21() = 0;
    virtual void reserved22() = 0;
    virtual void reserved23() = 0;
    virtual void reserved24() = 0;
    virtual void reserved25() = 0;
    virtual void reserved26() = 0;
    virtual void reserved27() = 0;
    virtual void reserved28() = 0;
    // The modal dialog that loads line types into the database; this library
    // passes both strings empty.
    virtual bool loadLineTypes(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& names, const wxString&,
                               const OdString&) = 0;
    virtual void reserved30() = 0;
    virtual void reserved31() = 0;
    virtual void reserved32() = 0;
    virtual void reserved33() = 0;
    virtual void reserved34() = 0;
    virtual void reserved35() = 0;
    virtual void reserved36() = 0;
    virtual void reserved37() = 0;
    virtual void reserved38() = 0;
    virtual void reserved39() = 0;
    virtual void reserved40() = 0;
    virtual void reserved41() = 0;
    virtual void reserved42() = 0;
    virtual void reserved43() = 0;
    virtual void reserved44() = 0;
    virtual void reserved45() = 0;
    virtual void reserved46() = 0;
    virtual void reserved47() = 0;
    virtual void reserved48() = 0;
    virtual void reserved49() = 0;
    virtual void reserved50() = 0;
    virtual void reserved51() = 0;
    virtual void reserved52() = 0;
    virtual void reserved53() = 0;
    virtual void reserved54() = 0;

    int showMessage(OdString title, OdString message, EMessageStyle style,
                    const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const;
    int showMessage(OdString title, OdString message, EMessageStyle style, MessageButtonStyle buttons,
                    wxWindow* parent) const;
    std::pair<int, bool> showMessage(OdString title, OdString message, OdString extraText, EMessageStyle style,
                                     MessageButtonStyle buttons, wxWindow* parent) const;
    int showInfoMessage(OdString title, OdString message, wxWindow* parent = nullptr,
                        MessageButtonStyle buttons = Ok) const;
    int showWarningMessage(OdString title, OdString message, wxWindow* parent = nullptr,
                           MessageButtonStyle buttons = Ok) const;
    int showErrorMessage(OdString title, OdString message, wxWindow* parent = nullptr,
                         MessageButtonStyle buttons = Ok) const;
    // chooseColor on a plain RGB colour. Only red, green and blue come back, with
    // full alpha: indexed and by-layer colours are lost on this path.
    std::optional<wxColour> dlgColor(wxWindow* parent, const wxColour& current, unsigned int options) const;
};

// The buttons of a style in display order, their labels translated anew at
// every call so that a change of language shows at the next box. A value
// outside the enumeration gives the buttons of Ok.
DLGBRIDGE_EXPORT std::vector<MessageButtonInfo> buttonsFromButtonStyle(MessageButtonStyle style);

// An error or info box with one OK button on the application's factory; without
// an application object they do nothing.
DLGBRIDGE_EXPORT void showErrorDialog(const wxString& message);
DLGBRIDGE_EXPORT void showMessageDialog(const wxString& message);

// A Qt Widgets input dialog, bypassing the factory. A cancel gives an empty
// string, as an empty entry does.
DLGBRIDGE_EXPORT wxString qwxGetTextFromUser(const wxString& message, const wxString& caption);

} // namespace dbr
