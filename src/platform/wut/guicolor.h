#pragma once

#include <wx/colour.h>

// Stand-in for the application's theme colours. Only the entries the library
// uses are modelled; their numbers are those of the real enumeration.
namespace wut {

enum EGuiColor {
    eGuiWindowBackground = 0,
    eGuiWindowText = 18,
};

// The theme's colour for `which`; an invalid wxColour for entries not modelled.
wxColour guiColor(EGuiColor which);

} // namespace wut
