#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/bitmap.h>
#include <wx/string.h>

namespace dbr {

// An image, given as a bitmap or as an icon's address.
class DLGBRIDGE_EXPORT qwxStaticBitmap : public qwxControl
{
public:
    qwxStaticBitmap(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxStaticBitmap)

    void setBitmap(const wxBitmap& bitmap);
    void setIcon(const wxString& icon);
};

} // namespace dbr
