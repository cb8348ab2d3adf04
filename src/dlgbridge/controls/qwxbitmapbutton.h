#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/bitmap.h>

namespace dbr {

// A button that shows an image.
class DLGBRIDGE_EXPORT qwxBitmapButton : public qwxControl
{
public:
    qwxBitmapButton(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxBitmapButton)

    void setBitmap(const wxBitmap& bitmap);
};

} // namespace dbr
