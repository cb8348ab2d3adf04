#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/colour.h>
#include <wx/string.h>

namespace dbr {

// A label.
class DLGBRIDGE_EXPORT qwxStaticText : public qwxControl
{
public:
    qwxStaticText(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxStaticText)

    void SetLabel(const wxString& label);
    wxString GetLabel() const;
    void SetForegroundColour(const wxColour& colour);
};

} // namespace dbr
