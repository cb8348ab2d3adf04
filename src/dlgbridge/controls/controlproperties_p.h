#pragma once

#include <QString>

#include <wx/bitmap.h>
#include <wx/string.h>

namespace dbr {

class qwxWindow;

// Accessors that several control classes share, each over one QML property.
namespace controlproperties {

// "text"
void setLabel(qwxWindow& control, const wxString& label);
// Any string property, as wx text.
wxString stringProperty(const qwxWindow& control, const char* name);
// "image", as a QImage
void setBitmap(qwxWindow& control, const wxBitmap& bitmap);
// "checked"
void setChecked(qwxWindow& control, bool checked);
bool isChecked(const qwxWindow& control);
// "currentIndex"
void setCurrentIndex(qwxWindow& control, int index);
int currentIndex(const qwxWindow& control);

} // namespace controlproperties
} // namespace dbr
