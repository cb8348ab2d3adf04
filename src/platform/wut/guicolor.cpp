#include "guicolor.h"

namespace wut {

wxColour guiColor(EGuiColor which)
{
    switch (which) {
    case eGuiWindowBackground: return wxColour(0xF0, 0xF0, 0xF0);
    case eGuiWindowText: return wxColour(0x00, 0x00, 0x00);
    }
    return wxColour();
}

} // namespace wut
