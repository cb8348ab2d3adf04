#include "qwxspinctrl.h"

namespace dbr {

qwxSpinCtrl::qwxSpinCtrl(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

int qwxSpinCtrl::GetValue() const
{
    return getQmlProperty("value").toInt();
}

void qwxSpinCtrl::SetValue(int value)
{
    setQmlProperty("value", value);
}

} // namespace dbr
