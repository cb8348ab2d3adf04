#include "qwxradiobutton.h"

#include "controlproperties_p.h"

namespace dbr {

qwxRadioButton::qwxRadioButton(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxRadioButton::SetValue(bool checked)
{
    controlproperties::setChecked(*this, checked);
}

bool qwxRadioButton::GetValue() const
{
    return controlproperties::isChecked(*this);
}

} // namespace dbr
