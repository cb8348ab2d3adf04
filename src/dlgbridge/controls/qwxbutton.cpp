#include "qwxbutton.h"

#include "controlproperties_p.h"

namespace dbr {

qwxButton::qwxButton(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

QString qwxButton::typeId()
{
    return QStringLiteral("qwxButton");
}

QString qwxButton::typeName() const
{
    return typeId();
}

void qwxButton::SetLabel(const wxString& label)
{
    controlproperties::setLabel(*this, label);
}

} // namespace dbr
