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

class qwxGenericValidatorPrivate
{
public:
    using Variable = std::variant<bool*, int*, wxString*>;

    explicit qwxGenericValidatorPrivate(Variable value)
        : variable(value)
    {}

    Variable variable;
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
template<typename Direction, typename Variable>
bool transfer(const IValidator& validator, qwxControl* control, const Variable& variable)
{
    if (!control || std::visit([](auto* value) { return !value; }, variable))
        return false;
    return std::visit(Direction{validator, *control}, variable);
}

} // namespace

qwxGenericValidator::qwxGenericValidator(bool* value)
    : d(std::make_unique<qwxGenericValidatorPrivate>(value))
{}

qwxGenericValidator::qwxGenericValidator(int* value)
    : d(std::make_unique<qwxGenericValidatorPrivate>(value))
{}

qwxGenericValidator::qwxGenericValidator(wxString* value)
    : d(std::make_unique<qwxGenericValidatorPrivate>(value))
{}

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

// A clone points at the same variable and has no control until it is set.
IValidator* qwxGenericValidator::clone() const
{
    return std::visit([](auto* value) -> IValidator* { return new qwxGenericValidator(value); }, d->variable);
}

} // namespace dbr
