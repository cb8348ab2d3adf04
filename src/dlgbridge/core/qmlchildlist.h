#pragma once

#include "qwxevent.h"
#include "qwxwindow.h"

#include <QStringList>

#include <map>
#include <memory>
#include <vector>

class QObject;

namespace dbr {

class QmlChildListPrivate;
class qwxDragDropEvent;
class qwxGridEvent;
class qwxListEvent;
class qwxTreeEvent;

// The wrappers of every named item under one QML root, keyed by object name,
// with the callback objects of their connections. A host owns one; populate()
// is the only place its wrappers come from.
class DLGBRIDGE_EXPORT QmlChildList
{
public:
    using ChildMap = std::map<QString, std::vector<std::unique_ptr<qwxWindow>>>;

    explicit QmlChildList(qwxWindow& parent);
    ~QmlChildList();

    // Destroys every former wrapper and callback, then wraps the tree under root.
    void populate(QObject& root);
    void reset();
    void resetCallbacks();

    ChildMap& children() const;
    // Every wrapper in key order, the wrappers of one name in their order.
    void forEachChild(const std::function<void(qwxWindow&)>& visit) const;
    QObject* root();

    // The wrapper of that name, or the host when the name is its own.
    qwxWindow* FindWindow(const OdString& name) const;

    template<typename T>
    T* child(const OdString& name)
    {
        qwxWindow* window = FindWindow(name);
        if (!window)
            return nullptr;
        if (T* typed = dynamic_cast<T*>(window))
            return typed;
        reportTypeMismatch(name, *window, T::typeId());
        return nullptr;
    }

    QObject& addQmlCallback(std::unique_ptr<QObject> callback);
    // Connects signal of item to slot of callback and keeps the callback, only
    // when Qt made the connection; a refusal is logged.
    bool connectCallback(QObject& item, const char* signal, std::unique_ptr<QObject> callback, const char* slot,
                         Qt::ConnectionType type = Qt::AutoConnection);

    void TransferDataToWindow();
    void TransferDataFromWindow();

    // Relays a tick of a timer to the handlers connected to timer events.
    void onTimer(int id);

    // Connections of a control's QML signal to a handler. The name "wxID_ANY"
    // connects every control of the kinds the operation is meant for.
    void connectToTextAcceptedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    void connectToClickEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // Connects the standard button of that wx id (wxID_OK, ...).
    void connectToClickEvent(int id, EventHandler<qwxCommandEvent> handler);
    void connectToRadioButtonEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    void connectToToggleButtonEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // The event carries the check box's state after the click.
    void connectToCheckBoxEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    void connectToNotebookPageChangedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // Listens to every menu; the handler hears the items whose string equals name.
    void connectToMenuEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // The event carries the control's text (a spin control's value) as it is when the signal arrives.
    void connectToTextEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // The event carries the selection and the client data of the selected entry.
    void connectToChoiceEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // The event carries the combo's text.
    void connectToComboEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    void connectToKeyPressedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler);
    void connectToKeyReleasedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler);
    void connectToContextMenuEvent(const OdString& name, EventHandler<qwxContextMenuEvent> handler);
    void connectToContextMenuEvent(const qwxWindow& window, EventHandler<qwxContextMenuEvent> handler);
    void connectToLeftDoubleClick(const qwxWindow& window, EventHandler<qwxMouseEvent> handler);
    void connectToSizeEvent(const qwxWindow& window, EventHandler<qwxSizeEvent> handler);
    // wxID_OK, wxID_CANCEL or wxID_APPLY of the dialog's root item.
    void connectToDlgResult(int id, EventHandler<qwxCommandEvent> handler);
    // Ticks of the timer with that id reach the handler; id -1 hears every timer.
    void connectToTimerEvent(qwxWindow& window, int id, EventHandler<qwxTimerEvent> handler);

    // Tree connections (defined with the tree control): their events name rows by id.
    // A name without a tree control drops the handler.
    void connectToTreeSelChangedEvent(const OdString& name, EventHandler<qwxTreeEvent> handler);
    void connectToLeftDoubleClick(const OdString& name, EventHandler<qwxTreeEvent> handler);
    // The handler answers with qwxTreeEvent::SetToolTip.
    void connectToTreeItemGetToolTip(const OdString& name, EventHandler<qwxTreeEvent> handler);
    void connectToEndLabelEdit(const OdString& name, EventHandler<qwxTreeEvent> handler);
    // Asked whenever the view wants to know whether a label may be edited; a veto refuses.
    void connectToBeginLabelEdit(const OdString& name, EventHandler<qwxTreeEvent> handler);
    void connectToBeginDrag(const OdString& name, EventHandler<qwxDragDropEvent> handler);
    void connectToEndDrag(const OdString& name, EventHandler<qwxDragDropEvent> handler);

    // List and table connections (defined with the list control).
    // The event carries the text of the list's selection, not its row.
    void connectToListBoxSelectedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    // The event carries the row whose mark changed; the mark is in the list already.
    void connectToCheckListboxEvent(const OdString& name, EventHandler<qwxCommandEvent> handler);
    void connectToListItemSelectedEvent(const OdString& name, EventHandler<qwxListEvent> handler);
    void connectToListSelectionEvent(const OdString& name, EventHandler<qwxListEvent> handler);
    // These two run their handler from the event loop, after the item's own signal handler returned.
    void connectToListDoubleClickedEvent(const OdString& name, EventHandler<qwxListEvent> handler);
    void connectToRightClick(const OdString& name, EventHandler<qwxListEvent> handler);
    void connectToTableSelectionEvent(const OdString& name, EventHandler<qwxGridEvent> handler);
    // The event carries the cell's new text.
    void connectToTableTextAcceptedEvent(const OdString& name, EventHandler<qwxGridEvent> handler);

private:
    Q_DISABLE_COPY(QmlChildList)

    using CallbackFactory = std::function<std::unique_ptr<QObject>(qwxWindow*)>;

    // Connects signal of the item called name (or of every wrapper of one of the
    // types, for "wxID_ANY") to slot of a callback made for its wrapper.
    void connectToSignal(const char* signal, const OdString& name, const CallbackFactory& makeCallback,
                         const QStringList& types, const char* slot, Qt::ConnectionType type = Qt::AutoConnection);
    void connectOne(QObject& top, const char* signal, const QString& name, const CallbackFactory& makeCallback,
                    const char* slot, Qt::ConnectionType type);
    void connectEvery(const char* signal, const CallbackFactory& makeCallback, const QStringList& types,
                      const char* slot, Qt::ConnectionType type);
    // A connection whose callback raises a command event.
    void connectCommand(const char* signal, const char* slot, const OdString& name,
                        EventHandler<qwxCommandEvent> handler, const QStringList& types,
                        std::function<qwxCommandEvent(qwxWindow*)> eventBuilder = {});

    template<typename Callback, typename Event>
    void connectList(const char* signal, const char* slot, const OdString& name, EventHandler<Event> handler,
                     Qt::ConnectionType type = Qt::AutoConnection);
    template<typename Callback, typename Event>
    void connectTree(const char* signal, const char* slot, const OdString& name, EventHandler<Event> handler);

    qwxWindow& parent() const;
    static void reportTypeMismatch(const OdString& name, const qwxWindow& window, const QString& expectedType);

    std::unique_ptr<QmlChildListPrivate> const d;
};

} // namespace dbr
