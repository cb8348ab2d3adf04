#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/string.h>

namespace dbr {

// A push button.
class DLGBRIDGE_EXPORT qwxButton : public qwxControl
{
public:
    qwxButton(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxButton)

    void SetLabel(const wxString& label);
};

} // namespace dbr
