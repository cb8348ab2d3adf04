#pragma once

#include <dlgbridge/core/qwxevent.h>

#include <QObject>
#include <QString>

namespace dbr {

class qwxListCtrl;
class qwxWindow;

// Tells a check list's handler which row's mark changed.
class QmlCheckListboxCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlCheckListboxCallback)

public:
    QmlCheckListboxCallback(EventHandler<qwxCommandEvent> handler, qwxWindow* window);

public Q_SLOTS:
    void onCheckChanged(int row, bool checked);

private:
    EventHandler<qwxCommandEvent> m_handler;
    qwxWindow* m_window;
};

// Turns a list's row signals into list events that carry the row's client object.
// A negative row raises nothing.
class QmlListCurrentCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlListCurrentCallback)

public:
    QmlListCurrentCallback(qwxWindow* window, EventHandler<qwxListEvent> handler);

public Q_SLOTS:
    void onListCurrentEvent(int current);
    void onListSelectionChanged();
    void onListRowActivated(int row);
    void onListRightClickedEvent(int row);
    void onListDoubleClickedEvent(int row);

private:
    void raiseForRow(int row);

    qwxWindow* m_window;
    EventHandler<qwxListEvent> m_handler;
};

// Turns a table's cell signals into grid events that carry the cell's client object.
class QmlTableCurrentCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlTableCurrentCallback)

public:
    QmlTableCurrentCallback(qwxWindow* window, EventHandler<qwxGridEvent> handler);

public Q_SLOTS:
    void onTableCurrentEvent(int row, int column);
    void onTableSelectionChanged();
    void onTableCellChanged(int row, int column, QString value);

private:
    void raiseForCell(int row, int column, const QString& value);

    qwxWindow* m_window;
    EventHandler<qwxGridEvent> m_handler;
};

} // namespace dbr
