#include "qwxbitmapbutton.h"

#include "controlproperties_p.h"

namespace dbr {

qwxBitmapButton::qwxBitmapButton(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
{}

void qwxBitmapButton::setBitmap(const wxBitmap& bitmap)
{
    controlproperties::setBitmap(*this, bitmap);
}

} // namespace dbr
