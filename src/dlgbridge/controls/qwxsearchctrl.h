#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/string.h>

namespace dbr {

// The wrapper of a search field.
class DLGBRIDGE_EXPORT qwxSearchCtrl : public qwxControl
{
public:
    qwxSearchCtrl(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxSearchCtrl)

    // The hint shown while the field is empty.
    void SetDescriptiveText(const wxString& text);
    wxString GetValue() const;
    void SetValue(const wxString& value);
    // Sets the text without raising the item's change signals.
    void ChangeValue(const wxString& value);
};

} // namespace dbr
