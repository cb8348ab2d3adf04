#include "qwxstaticbitmap.h"

#include "controlproperties_p.h"

#include <qut/qtconversions.h>

namespace dbr {

qwxStaticBitmap::qwxStaticBitmap(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxStaticBitmap::setBitmap(const wxBitmap& bitmap)
{
    controlproperties::setBitmap(*this, bitmap);
}

void qwxStaticBitmap::setIcon(const wxString& icon)
{
    setQmlProperty("icon", qut::toQt(icon));
}

} // namespace dbr
