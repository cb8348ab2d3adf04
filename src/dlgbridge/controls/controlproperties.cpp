#include "controlproperties_p.h"

#include <dlgbridge/core/qwxwindow.h>

#include <QImage>

#include <qut/qtconversions.h>

namespace dbr::controlproperties {

void setLabel(qwxWindow& control, const wxString& label)
{
    control.setQmlProperty("text", qut::toQt(label));
}

wxString stringProperty(const qwxWindow& control, const char* name)
{
    return qut::wxFromQt(control.getQmlProperty(name).toString());
}

void setBitmap(qwxWindow& control, const wxBitmap& bitmap)
{
    control.setQmlProperty("image", QVariant::fromValue(qut::convertImage(bitmap.ConvertToImage())));
}

void setChecked(qwxWindow& control, bool checked)
{
    control.setQmlProperty("checked", checked);
}

bool isChecked(const qwxWindow& control)
{
    return control.getQmlProperty("checked").toBool();
}

void setCurrentIndex(qwxWindow& control, int index)
{
    control.setQmlProperty("currentIndex", index);
}

int currentIndex(const qwxWindow& control)
{
    return control.getQmlProperty("currentIndex").toInt();
}

} // namespace dbr::controlproperties
