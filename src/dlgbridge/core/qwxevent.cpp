#include "qwxevent.h"

#include "qwxclientdata.h"
#include "qwxwindow.h"

#include <QDebug>

#include <qut/qtconversions.h>

#include <variant>

namespace dbr {

namespace {

constexpr int keypadMask = ~int(Qt::KeypadModifier);

} // namespace

qwxEvent::qwxEvent(qwxWindow* window)
    : m_window(window)
{}

qwxEvent::~qwxEvent() = default;

void* qwxEvent::GetClientData()
{
    return nullptr;
}

qwxClientData* qwxEvent::GetClientObject() const
{
    return nullptr;
}

qwxWindow* qwxEvent::GetEventObject() const
{
    return m_window;
}

void qwxEvent::Skip(bool skip)
{
    m_skipped = skip;
}

wxString qwxEvent::GetId() const
{
    return m_window ? qut::wxFromQt(m_window->wrappedObjectName()) : wxString();
}

class qwxCommandEventPrivate
{
public:
    using Value = std::variant<bool, int, wxString, std::monostate>;

    qwxCommandEventPrivate(qwxClientData* client, Value initial)
        : clientObject(client)
        , value(std::move(initial))
    {}

    template<typename T>
    T valueOr(T fallback) const
    {
        const T* held = std::get_if<T>(&value);
        return held ? *held : fallback;
    }

    qwxClientData* clientObject;
    Value value;
};

qwxCommandEvent::qwxCommandEvent(qwxWindow* window)
    : qwxEvent(window)
    , d(std::make_unique<qwxCommandEventPrivate>(nullptr, std::monostate()))
{}

qwxCommandEvent::qwxCommandEvent(qwxWindow* window, bool checked)
    : qwxEvent(window)
    , d(std::make_unique<qwxCommandEventPrivate>(nullptr, checked))
{}

qwxCommandEvent::qwxCommandEvent(qwxWindow* window, int selection, qwxClientData* clientObject)
    : qwxEvent(window)
    , d(std::make_unique<qwxCommandEventPrivate>(clientObject, selection))
{}

qwxCommandEvent::qwxCommandEvent(qwxWindow* window, const wxString& text, qwxClientData* clientObject)
    : qwxEvent(window)
    , d(std::make_unique<qwxCommandEventPrivate>(clientObject, text))
{}

qwxCommandEvent::qwxCommandEvent(qwxCommandEvent&& other) = default;
qwxCommandEvent& qwxCommandEvent::operator=(qwxCommandEvent&& other) = default;
qwxCommandEvent::~qwxCommandEvent() = default;

int qwxCommandEvent::GetSelection() const
{
    return d->valueOr(0);
}

bool qwxCommandEvent::IsChecked() const
{
    return d->valueOr(false);
}

wxString qwxCommandEvent::GetString() const
{
    return d->valueOr(wxString());
}

qwxClientData* qwxCommandEvent::GetClientObject() const
{
    return d->clientObject;
}

int qwxCommandEvent::getMenuId() const
{
    qDebug("qwxCommandEvent::getMenuId: stub");
    return 0;
}

qwxClientDataEvent::qwxClientDataEvent(qwxWindow* window, qwxClientData* clientObject)
    : qwxEvent(window)
    , m_clientObject(clientObject)
{}

qwxClientData* qwxClientDataEvent::GetClientObject() const
{
    return m_clientObject;
}

void* qwxClientDataEvent::GetClientData()
{
    auto* data = dynamic_cast<VoidClientData*>(m_clientObject);
    return data ? data->GetData() : nullptr;
}

qwxListEvent::qwxListEvent(qwxWindow* window, qwxClientData* clientObject, int index)
    : qwxClientDataEvent(window, clientObject)
    , m_index(index)
{}

qwxGridEvent::qwxGridEvent(qwxWindow* window, qwxClientData* clientObject, int row, int column, const wxString& text)
    : qwxClientDataEvent(window, clientObject)
    , m_row(row)
    , m_column(column)
    , m_text(text)
{}

qwxKeyEvent::qwxKeyEvent(qwxWindow* window, int key, int modifiers, const QString& text)
    : qwxEvent(window)
    , m_event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text, false, 1)
{}

int qwxKeyEvent::getKey() const
{
    return m_event.key();
}

wchar_t qwxKeyEvent::GetUnicodeKey() const
{
    const wxString text = qut::wxFromQt(m_event.text());
    return text.length() == 1 ? wchar_t(text[0].GetValue()) : 0;
}

bool qwxKeyEvent::HasModifiers() const
{
    return (int(m_event.modifiers()) & keypadMask) != 0;
}

bool qwxKeyEvent::ControlDown() const
{
    return m_event.modifiers().testFlag(Qt::ControlModifier);
}

bool qwxKeyEvent::AltDown() const
{
    return m_event.modifiers().testFlag(Qt::AltModifier);
}

bool qwxKeyEvent::ShiftDown() const
{
    return m_event.modifiers().testFlag(Qt::ShiftModifier);
}

qwxTimerEvent::qwxTimerEvent(qwxWindow* window, int timerId)
    : qwxEvent(window)
    , m_timerId(timerId)
{}

} // namespace dbr
