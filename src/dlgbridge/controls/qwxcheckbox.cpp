#include "qwxcheckbox.h"

#include "controlproperties_p.h"

namespace dbr {

qwxCheckBox::qwxCheckBox(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxCheckBox::SetValue(bool checked)
{
    controlproperties::setChecked(*this, checked);
}

bool qwxCheckBox::GetValue() const
{
    return controlproperties::isChecked(*this);
}

bool qwxCheckBox::IsChecked() const
{
    return GetValue();
}

} // namespace dbr
