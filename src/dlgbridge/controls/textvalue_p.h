#pragma once

#include <QPointer>

#include <wx/string.h>

namespace dbr {

class qwxWindow;

// How text reaches the item of a text control or search field.
namespace textvalue {

// Through the item's "clear" and "insert" methods, never its "text" property,
// so that the item's undo stack and change signals behave as for typing. An
// unchanged text leaves the item alone.
void setText(qwxWindow& control, const wxString& value, const wxString& old);

// Blocks the signals of a control's item while it lives, so that no handler
// hears a change made by code.
class ItemSignalBlocker
{
public:
    explicit ItemSignalBlocker(const qwxWindow& control);
    ~ItemSignalBlocker();
    Q_DISABLE_COPY(ItemSignalBlocker)

private:
    QPointer<QObject> m_item;
    bool m_wasBlocked = false;
};

} // namespace textvalue
} // namespace dbr
