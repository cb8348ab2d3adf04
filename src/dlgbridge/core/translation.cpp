#include "translation_p.h"

#include <wx/translation.h>

#include <qut/qtconversions.h>

namespace dbr {

wxString wxTranslated(const wxString& text)
{
    const wxTranslations* translations = wxTranslations::Get();
    const wxString* translation = translations ? translations->GetTranslatedString(text) : nullptr;
    return translation ? *translation : wxTranslations::GetUntranslatedString(text);
}

QString translated(const char* text)
{
    return qut::toQt(wxTranslated(wxString::FromUTF8(text)));
}

} // namespace dbr
