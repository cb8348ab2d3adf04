#pragma once

#include <QString>

#include <wx/string.h>

namespace dbr {

// What wx's _() does, looked up when called rather than when the text was
// made: the application's wxTranslations if it set any up, else the text as given.
wxString wxTranslated(const wxString& text);
QString translated(const char* text);

} // namespace dbr
