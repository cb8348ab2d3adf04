#include "qwxtextctrl.h"

#include "controlproperties_p.h"
#include "textvalue_p.h"

#include <dlgbridge/core/qmlcallbacks.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QDebug>

#include <wx/event.h>

namespace dbr {

namespace {

// Invokes a method of the control's item, if it is there; the search logs a missing item.
template<typename... Arguments>
void invokeOnItem(const qwxWindow& control, const char* method, Arguments... arguments)
{
    if (QObject* item = control.findObject())
        QMetaObject::invokeMethod(item, method, Qt::DirectConnection, arguments...);
}

} // namespace

qwxTextCtrl::qwxTextCtrl(const OdString& name, qwxWindow& parent, long style)
    : qwxControl(name, parent)
{
    if (style != 0) {
        qDebug("qwxTextCtrl: ignore flags. Please update the qml component (if required) and remove the flags from "
               "C++.\n\nFlags that don't need any changes and can just be removed:\n* wxTE_NOHIDESEL\n* "
               "wxTE_PROCESS_ENTER\n* wxTE_RICH\n");
    }
}

wxString qwxTextCtrl::GetValue() const
{
    return textvalue::text(*this);
}

void qwxTextCtrl::SetValue(const wxString& value)
{
    textvalue::setText(*this, value);
}

void qwxTextCtrl::ChangeValue(const wxString& value)
{
    textvalue::changeText(*this, value);
}

void qwxTextCtrl::SetSelection(long from, long to)
{
    invokeOnItem(*this, "select", Q_ARG(int, int(from)), Q_ARG(int, int(to)));
}

wxString qwxTextCtrl::GetStringSelection() const
{
    return controlproperties::stringProperty(*this, "selectedText");
}

void qwxTextCtrl::GetSelection(long* from, long* to) const
{
    if (!from || !to)
        return;
    *from = getQmlProperty("selectionStart").toInt();
    *to = getQmlProperty("selectionEnd").toInt();
}

long qwxTextCtrl::GetInsertionPoint() const
{
    return getQmlProperty("cursorPosition").toInt();
}

void qwxTextCtrl::SetInsertionPoint(long position)
{
    setQmlProperty("cursorPosition", int(position));
}

int qwxTextCtrl::GetLastPosition() const
{
    return getQmlProperty("length").toInt();
}

void qwxTextCtrl::ShowPosition(long position)
{
    invokeOnItem(*this, "ensureVisible", Q_ARG(int, int(position)));
}

bool qwxTextCtrl::IsModified() const
{
    return getQmlProperty("canUndo").toBool();
}

void qwxTextCtrl::Connect(int eventType, EventHandler<qwxFocusEvent> handler, qwxObject*, qwxWindow*)
{
    if (eventType != wxEVT_KILL_FOCUS) {
        qWarning().noquote()
            << QStringLiteral("(%1) Not connecting to event %2").arg(wrappedObjectName(), QString::number(eventType));
        return;
    }
    QObject* item = findObject();
    if (!item)
        return;
    QmlChildList* list = GetParent() ? GetParent()->qmlChildren(UseParentList) : nullptr;
    if (!list)
        return;
    list->connectCallback(*item, "2editingFinished()", std::make_unique<QmlFocusCallback>(this, std::move(handler)),
                          "1onEvent()");
}

} // namespace dbr
