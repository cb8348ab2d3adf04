#pragma once

namespace dbr {

class IDialogFactory;
class IGuiController;

// What a host hands down to its controls: the application's services, which
// outlive every dialog and are not owned here.
struct QtControlModels
{
    IGuiController* guiController = nullptr;
    IDialogFactory* dialogFactory = nullptr;
};

} // namespace dbr
