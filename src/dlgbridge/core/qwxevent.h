#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QKeyEvent>
#include <QString>

#include <wx/string.h>

#include <functional>
#include <memory>

namespace dbr {

class qwxClientData;
class qwxCommandEventPrivate;
class qwxWindow;

// What a handler receives: built on the stack when a QML signal arrives and
// gone when the handler returns. Pointers inside are borrowed for that call.
class DLGBRIDGE_EXPORT qwxEvent
{
public:
    explicit qwxEvent(qwxWindow* window);
    qwxEvent(const qwxEvent& other) = default;
    qwxEvent(qwxEvent&& other) = default;
    qwxEvent& operator=(const qwxEvent& other) = default;
    qwxEvent& operator=(qwxEvent&& other) = default;
    virtual ~qwxEvent();

    virtual void* GetClientData();
    virtual qwxClientData* GetClientObject() const;
    virtual qwxWindow* GetEventObject() const;

    void Skip(bool skip);
    // Leaves the flag as it is: dialog code written against this form never saw it set.
    void Skip() {}
    bool GetSkipped() const { return m_skipped; }
    // The object name of the source; empty without one.
    wxString GetId() const;

private:
    qwxWindow* m_window;
    bool m_skipped = false;
};

// The event of a command: a click, a selection, a text; it carries at most one
// value, and each accessor answers only for its own kind of value.
class DLGBRIDGE_EXPORT qwxCommandEvent : public qwxEvent
{
public:
    explicit qwxCommandEvent(qwxWindow* window);
    qwxCommandEvent(qwxWindow* window, bool checked);
    qwxCommandEvent(qwxWindow* window, int selection, qwxClientData* clientObject);
    qwxCommandEvent(qwxWindow* window, const wxString& text, qwxClientData* clientObject);
    qwxCommandEvent(qwxCommandEvent&& other);
    qwxCommandEvent& operator=(qwxCommandEvent&& other);
    ~qwxCommandEvent() override;

    int GetSelection() const;
    bool IsChecked() const;
    wxString GetString() const;
    qwxClientData* GetClientObject() const override;
    int getMenuId() const;

private:
    std::unique_ptr<qwxCommandEventPrivate> d;
};

// An event about a row that may carry the client data dialog code attached to it.
class DLGBRIDGE_EXPORT qwxClientDataEvent : public qwxEvent
{
public:
    qwxClientDataEvent(qwxWindow* window, qwxClientData* clientObject);

    qwxClientData* GetClientObject() const override;
    // The pointer of a VoidClientData; null for any other client object.
    void* GetClientData() override;

private:
    qwxClientData* m_clientObject;
};

class DLGBRIDGE_EXPORT qwxListEvent : public qwxClientDataEvent
{
public:
    qwxListEvent(qwxWindow* window, qwxClientData* clientObject, int index = -1);

    int GetIndex() const { return m_index; }

private:
    int m_index;
};

class DLGBRIDGE_EXPORT qwxGridEvent : public qwxClientDataEvent
{
public:
    qwxGridEvent(qwxWindow* window, qwxClientData* clientObject, int row = -1, int column = -1,
                 const wxString& text = wxString());

    int GetRow() const { return m_row; }
    int GetCol() const { return m_column; }
    wxString GetString() const { return m_text; }

private:
    int m_row;
    int m_column;
    wxString m_text;
};

// A key press or release, always of type KeyPress; key codes are Qt's.
class DLGBRIDGE_EXPORT qwxKeyEvent : public qwxEvent
{
public:
    qwxKeyEvent(qwxWindow* window, int key, int modifiers, const QString& text);

    int getKey() const;
    // The character typed, when the key typed exactly one; else 0.
    wchar_t GetUnicodeKey() const;
    // Any modifier but the keypad flag.
    bool HasModifiers() const;
    bool ControlDown() const;
    bool AltDown() const;
    bool ShiftDown() const;
    const QKeyEvent& qtEvent() const { return m_event; }

private:
    QKeyEvent m_event;
};

class DLGBRIDGE_EXPORT qwxTimerEvent : public qwxEvent
{
public:
    qwxTimerEvent(qwxWindow* window, int timerId);

    int getTimerId() const { return m_timerId; }

private:
    int m_timerId;
};

// Events that only say that something happened, and to whom.
class DLGBRIDGE_EXPORT qwxSizeEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

class DLGBRIDGE_EXPORT qwxInitDialogEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

class DLGBRIDGE_EXPORT qwxFocusEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

class DLGBRIDGE_EXPORT qwxContextMenuEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

class DLGBRIDGE_EXPORT qwxUpdateUIEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

class DLGBRIDGE_EXPORT qwxMouseEvent : public qwxEvent
{
public:
    using qwxEvent::qwxEvent;
};

// What dialog code binds to an event.
template<typename Event>
using EventHandler = std::function<void(Event&)>;

} // namespace dbr
