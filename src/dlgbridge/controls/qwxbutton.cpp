#include "qwxbutton.h"

#include "controlproperties_p.h"

namespace dbr {

qwxButton::qwxButton(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxButton::SetLabel(const wxString& label)
{
    controlproperties::setLabel(*this, label);
}

} // namespace dbr
