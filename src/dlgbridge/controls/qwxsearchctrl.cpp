#include "qwxsearchctrl.h"

#include "controlproperties_p.h"
#include "textvalue_p.h"

#include <qut/qtconversions.h>

namespace dbr {

qwxSearchCtrl::qwxSearchCtrl(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxSearchCtrl::SetDescriptiveText(const wxString& text)
{
    setQmlProperty("placeholderText", qut::toQt(text));
}

wxString qwxSearchCtrl::GetValue() const
{
    return controlproperties::stringProperty(*this, "text");
}

void qwxSearchCtrl::SetValue(const wxString& value)
{
    textvalue::setText(*this, value, GetValue());
}

void qwxSearchCtrl::ChangeValue(const wxString& value)
{
    const textvalue::ItemSignalBlocker blocker(*this);
    SetValue(value);
}

} // namespace dbr
