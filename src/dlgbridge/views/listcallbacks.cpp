#include "listcallbacks_p.h"

#include "qwxlistctrl.h"

#include <qut/qtconversions.h>

namespace dbr {

QmlCheckListboxCallback::QmlCheckListboxCallback(EventHandler<qwxCommandEvent> handler, qwxWindow* window)
    : m_handler(std::move(handler))
    , m_window(window)
{}

void QmlCheckListboxCallback::onCheckChanged(int row, bool)
{
    qwxCommandEvent event(m_window, row, nullptr);
    m_handler(event);
}

QmlListCurrentCallback::QmlListCurrentCallback(qwxWindow* window, EventHandler<qwxListEvent> handler)
    : m_window(window)
    , m_handler(std::move(handler))
{}

void QmlListCurrentCallback::onListCurrentEvent(int current)
{
    raiseForRow(current);
}

void QmlListCurrentCallback::onListSelectionChanged()
{
    auto* list = dynamic_cast<qwxListCtrl*>(m_window);
    if (!list)
        return;
    qwxListEvent event(list, nullptr, -1);
    m_handler(event);
}

void QmlListCurrentCallback::onListRowActivated(int row)
{
    raiseForRow(row);
}

void QmlListCurrentCallback::onListRightClickedEvent(int row)
{
    raiseForRow(row);
}

void QmlListCurrentCallback::onListDoubleClickedEvent(int row)
{
    raiseForRow(row);
}

void QmlListCurrentCallback::raiseForRow(int row)
{
    auto* list = dynamic_cast<qwxListCtrl*>(m_window);
    if (!list || row < 0)
        return;
    qwxListEvent event(list, list->GetClientObject(row), row);
    m_handler(event);
}

QmlTableCurrentCallback::QmlTableCurrentCallback(qwxWindow* window, EventHandler<qwxGridEvent> handler)
    : m_window(window)
    , m_handler(std::move(handler))
{}

void QmlTableCurrentCallback::onTableCurrentEvent(int row, int column)
{
    raiseForCell(row, column, QString());
}

void QmlTableCurrentCallback::onTableSelectionChanged()
{
    auto* list = dynamic_cast<qwxListCtrl*>(m_window);
    if (!list)
        return;
    qwxGridEvent event(list, nullptr, -1, -1, wxString());
    m_handler(event);
}

void QmlTableCurrentCallback::onTableCellChanged(int row, int column, QString value)
{
    raiseForCell(row, column, value);
}

void QmlTableCurrentCallback::raiseForCell(int row, int column, const QString& value)
{
    auto* list = dynamic_cast<qwxListCtrl*>(m_window);
    if (!list || row < 0 || column < 0)
        return;
    qwxGridEvent event(list, list->GetClientObject(row, column), row, column, qut::wxFromQt(value));
    m_handler(event);
}

} // namespace dbr
