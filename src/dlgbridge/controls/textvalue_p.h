#pragma once

#include <wx/string.h>

namespace dbr {

class qwxWindow;

// How text reaches the item of a text control or search field.
namespace textvalue {

// The "text" of the item.
wxString text(const qwxWindow& control);

// Through the item's "clear" and "insert" methods, never its "text" property,
// so that the item's undo stack and change signals behave as for typing. An
// unchanged text leaves the item alone.
void setText(qwxWindow& control, const wxString& value);

// setText with the item's signals blocked, so that no handler hears it.
void changeText(qwxWindow& control, const wxString& value);

} // namespace textvalue
} // namespace dbr
