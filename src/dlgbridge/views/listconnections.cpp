// The list half of QmlChildList's connections, beside the list control they
// need, so that core knows no list.
#include "listcallbacks_p.h"
#include "qwxlistctrl.h"

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qmlcallbacks.h>

#include <QDebug>

#include <qut/qtconversions.h>

namespace dbr {

namespace {

const QStringList listTypes{QStringLiteral("qwxListCtrl")};

} // namespace

template<typename Callback, typename Event>
void QmlChildList::connectList(const char* signal, const char* slot, const OdString& name, EventHandler<Event> handler,
                               Qt::ConnectionType type)
{
    connectToSignal(
        signal, name, [&handler](qwxWindow* window) { return std::make_unique<Callback>(window, handler); },
        listTypes, slot, type);
}

void QmlChildList::connectToListBoxSelectedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    // The list is looked up when the row changes, and its selection read then.
    auto selectedText = [this, name, handler = std::move(handler)](qwxCommandEvent& event) {
        qwxListCtrl* list = child<qwxListCtrl>(name);
        if (!list) {
            qWarning().noquote() << QStringLiteral("(%1) Did not find wrapper component").arg(qut::toQt(name));
            return;
        }
        qwxCommandEvent withText(event.GetEventObject(), list->GetItemText(list->GetSelection()), nullptr);
        handler(withText);
    };
    connectCommand("2currentChanged(int)", "1onIntEvent(int)", name, std::move(selectedText), listTypes);
}

void QmlChildList::connectToCheckListboxEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectToSignal(
        "2checkedChanged(int,bool)", name,
        [&handler](qwxWindow* window) { return std::make_unique<QmlCheckListboxCallback>(handler, window); },
        {QStringLiteral("qwxCheckListBox")}, "1onCheckChanged(int,bool)");
}

void QmlChildList::connectToListItemSelectedEvent(const OdString& name, EventHandler<qwxListEvent> handler)
{
    connectList<QmlListCurrentCallback>("2currentChanged(int)", "1onListCurrentEvent(int)", name, std::move(handler));
}

void QmlChildList::connectToListSelectionEvent(const OdString& name, EventHandler<qwxListEvent> handler)
{
    connectList<QmlListCurrentCallback>("2selectionChanged()", "1onListSelectionChanged()", name,
                                        std::move(handler));
}

void QmlChildList::connectToListDoubleClickedEvent(const OdString& name, EventHandler<qwxListEvent> handler)
{
    connectList<QmlListCurrentCallback>("2doubleClicked(int)", "1onListRowActivated(int)", name, std::move(handler),
                                        Qt::QueuedConnection);
}

void QmlChildList::connectToRightClick(const OdString& name, EventHandler<qwxListEvent> handler)
{
    connectList<QmlListCurrentCallback>("2rightClicked(int)", "1onListRightClickedEvent(int)", name,
                                        std::move(handler), Qt::QueuedConnection);
}

void QmlChildList::connectToTableSelectionEvent(const OdString& name, EventHandler<qwxGridEvent> handler)
{
    connectList<QmlTableCurrentCallback>("2selectionChanged()", "1onTableSelectionChanged()", name,
                                         std::move(handler));
}

void QmlChildList::connectToTableTextAcceptedEvent(const OdString& name, EventHandler<qwxGridEvent> handler)
{
    connectList<QmlTableCurrentCallback>("2tableCellChanged(int, int, QString)",
                                         "1onTableCellChanged(int, int, QString)", name, std::move(handler));
}

} // namespace dbr
