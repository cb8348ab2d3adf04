#pragma once

#include <dlgbridge/core/qwxcontrol.h>
#include <dlgbridge/core/qwxevent.h>

#include <wx/string.h>

namespace dbr {

class qwxObject;

// The wrapper of a text field or text area.
class DLGBRIDGE_EXPORT qwxTextCtrl : public qwxControl
{
public:
    // A style has no effect: it belongs in the QML component.
    qwxTextCtrl(const OdString& name, qwxWindow& parent, long style = 0);

    DBR_WRAPPER_TYPE(qwxTextCtrl)

    virtual wxString GetValue() const;
    virtual void SetValue(const wxString& value);
    // Sets the text without raising the item's change signals.
    virtual void ChangeValue(const wxString& value);
    virtual void SetSelection(long from, long to);
    virtual wxString GetStringSelection() const;
    virtual void GetSelection(long* from, long* to) const;
    virtual long GetInsertionPoint() const;
    virtual void SetInsertionPoint(long position);
    virtual int GetLastPosition() const;
    virtual void ShowPosition(long position);
    // True while the item has something to undo.
    virtual bool IsModified() const;

    // Binds wxEVT_KILL_FOCUS, which arrives when editing finishes; any other type is refused.
    void Connect(int eventType, EventHandler<qwxFocusEvent> handler, qwxObject* userData = nullptr,
                 qwxWindow* sink = nullptr);
};

} // namespace dbr
