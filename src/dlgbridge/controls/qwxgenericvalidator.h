#pragma once

#include <dlgbridge/core/ivalidator.h>

#include <wx/string.h>

#include <memory>

namespace dbr {

class qwxGenericValidatorPrivate;

// Moves a bool, an int or a string of dialog code into the control kinds that
// can show it and back. The variable isn't owned: copies point at the same one.
class DLGBRIDGE_EXPORT qwxGenericValidator : public IValidator
{
public:
    explicit qwxGenericValidator(bool* value);
    explicit qwxGenericValidator(int* value);
    explicit qwxGenericValidator(wxString* value);
    qwxGenericValidator(const qwxGenericValidator& other);
    ~qwxGenericValidator() override;

    bool TransferToWindow() override;
    bool TransferFromWindow() override;
    IValidator* clone() const override;

private:
    std::unique_ptr<qwxGenericValidatorPrivate> const d;
};

} // namespace dbr
