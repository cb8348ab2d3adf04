#include "qwxgenericvalidator.h"

#include "qwxcheckbox.h"
#include "qwxchoice.h"
#include "qwxcombobox.h"
#include "qwxspinctrl.h"
#include "qwxstatictext.h"
#include "qwxtextctrl.h"

#include <QDebug>

#include <variant>

namespace dbr {

// The fourth alternative stands for a record no public constructor has filled.
class qwxGenericValidatorPrivate
{
public:
    std::variant<bool*, int*, wxString*, std::monostate> variable{std::in_place_index<3>};
};

namespace {

// Runs the transfer when the control is a Control (or derives from one).
template<typename Control, typename Transfer>
bool transferAs(qwxControl& control, Transfer transfer)
{
    auto* typed = dynamic_cast<Control*>(&control);
    if (!typed)
        return false;
    transfer(*typed);
    return true;
}

bool noValidControl(const char* text, const IValidator& validator, const qwxControl& control)
{
    qWarning() << text << validator.controlName() << " - " << control.typeName();
    return false;
}

// The two directions differ on purpose: an int reads from combo boxes but is
// only written to choices (with Select) and spin controls.
struct ToWindow
{
    const IValidator& validator;
    qwxControl& control;

    bool operator()(std::monostate) const { return false; }
    bool operator()(bool* value) const
    {
        return transferAs<qwxCheckBox>(control, [value](qwxCheckBox& box) { box.SetValue(*value); }) ||
               noValidControl("(bool) No valid control found for transfer to window. Control: ", validator, control);
    }
    bool operator()(int* value) const
    {
        return transferAs<qwxChoice>(control, [value](qwxChoice& choice) { choice.Select(*value); }) ||
               transferAs<qwxSpinCtrl>(control, [value](qwxSpinCtrl& spin) { spin.SetValue(*value); }) ||
               noValidControl("(int) No valid control found for transfer to window. Control:", validator, control);
    }
    bool operator()(wxString* value) const
    {
        return transferAs<qwxTextCtrl>(control, [value](qwxTextCtrl& text) { text.SetValue(*value); }) ||
               transferAs<qwxComboBox>(control, [value](qwxComboBox& combo) { combo.SetValue(*value); }) ||
               transferAs<qwxStaticText>(control, [value](qwxStaticText& label) { label.SetLabel(*value); }) ||
               noValidControl("(string) No valid control found for transfer to window. Control:", validator, control);
    }
};

// A list control, once there is one, is read before the choice for an int.
struct FromWindow
{
    const IValidator& validator;
    qwxControl& control;

    bool operator()(std::monostate) const { return false; }
    bool operator()(bool* value) const
    {
        return transferAs<qwxCheckBox>(control, [value](qwxCheckBox& box) { *value = box.GetValue(); }) ||
               noValidControl("(bool) No valid control found for transfer from window. Control:", validator, control);
    }
    bool operator()(int* value) const
    {
        return transferAs<qwxChoice>(control, [value](qwxChoice& choice) { *value = choice.GetSelection(); }) ||
               transferAs<qwxComboBox>(control, [value](qwxComboBox& combo) { *value = combo.GetSelection(); }) ||
               transferAs<qwxSpinCtrl>(control, [value](qwxSpinCtrl& spin) { *value = spin.GetValue(); }) ||
               noValidControl("(int) No valid control found for transfer from window. Control:", validator, control);
    }
    bool operator()(wxString* value) const
    {
        return transferAs<qwxTextCtrl>(control, [value](qwxTextCtrl& text) { *value = text.GetValue(); }) ||
               transferAs<qwxComboBox>(control, [value](qwxComboBox& combo) { *value = combo.GetValue(); }) ||
               transferAs<qwxStaticText>(control, [value](qwxStaticText& label) { *value = label.GetLabel(); }) ||
               noValidControl("(string) No valid control found for transfer from window. Control:", validator, control);
    }
};

// A null variable is no variable at all: nothing to transfer, nothing to say.
struct IsMissing
{
    bool operator()(std::monostate) const { return true; }
    template<typename Value>
    bool operator()(Value* value) const
    {
        return !value;
    }
};

template<typename Direction, typename Variable>
bool transfer(const IValidator& validator, qwxControl* control, const Variable& variable)
{
    if (!control || std::visit(IsMissing{}, variable))
        return false;
    return std::visit(Direction{validator, *control}, variable);
}

} // namespace

qwxGenericValidator::qwxGenericValidator()
    : d(std::make_unique<qwxGenericValidatorPrivate>())
{}

qwxGenericValidator::qwxGenericValidator(bool* value)
    : qwxGenericValidator()
{
    d->variable = value;
}

qwxGenericValidator::qwxGenericValidator(int* value)
    : qwxGenericValidator()
{
    d->variable = value;
}

qwxGenericValidator::qwxGenericValidator(wxString* value)
    : qwxGenericValidator()
{
    d->variable = value;
}

qwxGenericValidator::qwxGenericValidator(const qwxGenericValidator& other)
    : IValidator(other)
    , d(std::make_unique<qwxGenericValidatorPrivate>(*other.d))
{}

qwxGenericValidator::~qwxGenericValidator() = default;

bool qwxGenericValidator::TransferToWindow()
{
    return transfer<ToWindow>(*this, control(), d->variable);
}

bool qwxGenericValidator::TransferFromWindow()
{
    return transfer<FromWindow>(*this, control(), d->variable);
}

IValidator* qwxGenericValidator::clone() const
{
    auto* copy = new qwxGenericValidator();
    copy->d->variable = d->variable;
    return copy;
}

} // namespace dbr
