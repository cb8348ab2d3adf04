#pragma once

#include <dlgbridge/core/ivalidator.h>

#include <wx/string.h>
#include <wx/valtext.h>

#include <memory>

namespace dbr {

class qwxTextValidatorPrivate;

// Moves a string of dialog code into a text control and back; any other
// control is passed over in silence. The variable isn't owned.
class DLGBRIDGE_EXPORT qwxTextValidator : public IValidator
{
public:
    // Filtering styles aren't implemented: a non-zero style is logged and ignored.
    qwxTextValidator(wxTextValidatorStyle style, wxString* value);
    ~qwxTextValidator() override;

    bool TransferToWindow() override;
    bool TransferFromWindow() override;
    IValidator* clone() const override;

private:
    std::unique_ptr<qwxTextValidatorPrivate> const d;
};

} // namespace dbr
