#include "qwxtogglebutton.h"

#include "controlproperties_p.h"

namespace dbr {

qwxToggleButton::qwxToggleButton(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxToggleButton::SetActiveChoice(int index)
{
    controlproperties::setCurrentIndex(*this, index);
}

int qwxToggleButton::GetActiveChoice() const
{
    return controlproperties::currentIndex(*this);
}

} // namespace dbr
