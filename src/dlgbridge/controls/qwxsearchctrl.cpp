#include "qwxsearchctrl.h"

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
    return textvalue::text(*this);
}

void qwxSearchCtrl::SetValue(const wxString& value)
{
    textvalue::setText(*this, value);
}

void qwxSearchCtrl::ChangeValue(const wxString& value)
{
    textvalue::changeText(*this, value);
}

} // namespace dbr
