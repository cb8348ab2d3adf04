#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/core/wrapperkinds.h>

#include <optional>

namespace dbr::valueevents {

namespace {

// The event of a control of that class with its value, if window is one.
template<typename Control>
std::optional<qwxCommandEvent> valueOf(qwxWindow* window)
{
    if (auto* control = dynamic_cast<Control*>(window))
        return qwxCommandEvent(window, control->GetValue(), nullptr);
    return std::nullopt;
}

} // namespace

qwxCommandEvent checkBoxState(qwxWindow* window)
{
    if (auto* checkBox = dynamic_cast<qwxCheckBox*>(window))
        return qwxCommandEvent(window, checkBox->GetValue());
    return qwxCommandEvent(window);
}

qwxCommandEvent textValue(qwxWindow* window)
{
    std::optional<qwxCommandEvent> event = valueOf<qwxSearchCtrl>(window);
    if (!event)
        event = valueOf<qwxTextCtrl>(window);
    if (!event)
        event = valueOf<qwxComboBox>(window);
    if (!event)
        event = valueOf<qwxSpinCtrl>(window);
    return event ? std::move(*event) : qwxCommandEvent(window);
}

qwxCommandEvent choiceSelection(qwxWindow* window)
{
    auto* choice = dynamic_cast<qwxChoice*>(window);
    if (!choice)
        return qwxCommandEvent(window);
    const int selection = choice->GetSelection();
    return qwxCommandEvent(window, selection, choice->GetClientObject(selection));
}

} // namespace dbr::valueevents
