#include "idialogfactory.h"

#include <dlgbridge/core/translation_p.h>

#include <QDebug>
#include <QInputDialog>

#include <wx/defs.h>

#include <oa/OaApp.h>
#include <qut/qtconversions.h>

namespace dbr {

namespace {

OdString odTranslated(const wxString& text)
{
    return qut::odFromWx(wxTranslated(text));
}

// An application may come without a factory; it gets no boxes then either.
const IDialogFactory* applicationFactory()
{
    return oa::OaApp::s_app ? oa::OaApp::s_app->dialogFactory() : nullptr;
}

} // namespace

IDialogFactory::~IDialogFactory() = default;

void IDialogFactory::setupMessageBoxFaker(MessageBoxFaker) {}

void IDialogFactory::unsetMessageBoxFaker() {}

int IDialogFactory::showMessage(OdString title, OdString message, EMessageStyle style,
                                const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const
{
    return showMessage(std::move(title), std::move(message), OdString(), style, buttons, parent).first;
}

int IDialogFactory::showMessage(OdString title, OdString message, EMessageStyle style, MessageButtonStyle buttons,
                                wxWindow* parent) const
{
    return showMessage(std::move(title), std::move(message), style, buttonsFromButtonStyle(buttons), parent);
}

std::pair<int, bool> IDialogFactory::showMessage(OdString title, OdString message, OdString extraText,
                                                 EMessageStyle style, MessageButtonStyle buttons,
                                                 wxWindow* parent) const
{
    return showMessage(std::move(title), std::move(message), std::move(extraText), style,
                       buttonsFromButtonStyle(buttons), parent);
}

int IDialogFactory::showInfoMessage(OdString title, OdString message, wxWindow* parent,
                                    MessageButtonStyle buttons) const
{
    return showMessage(std::move(title), std::move(message), Info, buttons, parent);
}

int IDialogFactory::showWarningMessage(OdString title, OdString message, wxWindow* parent,
                                       MessageButtonStyle buttons) const
{
    return showMessage(std::move(title), std::move(message), Warning, buttons, parent);
}

int IDialogFactory::showErrorMessage(OdString title, OdString message, wxWindow* parent,
                                     MessageButtonStyle buttons) const
{
    return showMessage(std::move(title), std::move(message), Error, buttons, parent);
}

std::optional<wxColour> IDialogFactory::dlgColor(wxWindow* parent, const wxColour& current, unsigned int options) const
{
    OdCmColor color;
    color.setRGB(current.Red(), current.Green(), current.Blue());
    const std::optional<OdCmColor> chosen = chooseColor(parent, color, options);
    if (!chosen)
        return std::nullopt;
    return wxColour(chosen->red(), chosen->green(), chosen->blue(), wxALPHA_OPAQUE);
}

std::vector<MessageButtonInfo> buttonsFromButtonStyle(MessageButtonStyle style)
{
    const auto ok = [] { return MessageButtonInfo{odTranslated(wxS("&OK")), wxOK}; };
    const auto cancel = [] { return MessageButtonInfo{odTranslated(wxS("&Cancel")), wxCANCEL}; };
    const auto yes = [] { return MessageButtonInfo{odTranslated(wxS("&Yes")), wxYES}; };
    const auto no = [] { return MessageButtonInfo{odTranslated(wxS("&No")), wxNO}; };
    switch (style) {
    case OkCancel: return {ok(), cancel()};
    case YesNo: return {yes(), no()};
    case YesNoCancel: return {yes(), no(), cancel()};
    case Ok: break;
    }
    return {ok()};
}

void showErrorDialog(const wxString& message)
{
    if (const IDialogFactory* factory = applicationFactory())
        factory->showErrorMessage(odTranslated(wxS("Error")), qut::odFromWx(message), nullptr, Ok);
}

void showMessageDialog(const wxString& message)
{
    if (const IDialogFactory* factory = applicationFactory())
        factory->showInfoMessage(odTranslated(wxS("Info")), qut::odFromWx(message), nullptr, Ok);
}

wxString qwxGetTextFromUser(const wxString& message, const wxString& caption)
{
    qDebug("qwxGetTextFromUser: needs qml implementation");
    const QString text =
        QInputDialog::getText(nullptr, qut::toQt(caption), qut::toQt(message), QLineEdit::Normal, QString(), nullptr);
    return qut::wxFromQt(text);
}

} // namespace dbr
