#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <memory>

namespace dbr {

class ColorModel;
class IDialogFactory;
class IGuiController;
class LineTypeModel;

// What a host hands down to its controls: the application's services, which
// outlive every dialog and are not owned here, and the value models that all
// colour and line type combos of the dialog share, made by the first combo of
// each kind and kept until the dialog goes.
struct DLGBRIDGE_EXPORT QtControlModels
{
    QtControlModels();
    ~QtControlModels();
    QtControlModels(const QtControlModels&) = delete;
    QtControlModels& operator=(const QtControlModels&) = delete;

    IGuiController* guiController = nullptr;
    IDialogFactory* dialogFactory = nullptr;
    std::unique_ptr<LineTypeModel> lineTypeModel;
    std::unique_ptr<ColorModel> colorModel;
};

} // namespace dbr
