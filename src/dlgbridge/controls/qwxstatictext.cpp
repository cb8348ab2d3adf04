#include "qwxstatictext.h"

#include "controlproperties_p.h"

#include <QColor>

#include <qut/qtconversions.h>

namespace dbr {

qwxStaticText::qwxStaticText(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxStaticText::SetLabel(const wxString& label)
{
    controlproperties::setLabel(*this, label);
}

wxString qwxStaticText::GetLabel() const
{
    return controlproperties::stringProperty(*this, "text");
}

void qwxStaticText::SetForegroundColour(const wxColour& colour)
{
    setQmlProperty("color", QVariant::fromValue(qut::toQt(colour)));
}

} // namespace dbr
