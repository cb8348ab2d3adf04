#pragma once

#include <dlgbridge/views/qwxtreeevent.h>

#include <QObject>
#include <QVariant>

#include <functional>

namespace dbr {

class qwxTreeCtrl;

// Turns the tree view's signals, which carry indexes of the view's own model,
// into tree events about the rows' ids.
class QmlTreeCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlTreeCallback)

public:
    QmlTreeCallback(qwxTreeCtrl* tree, EventHandler<qwxTreeEvent> handler);

public Q_SLOTS:
    void onTreeSelectEvent(QVariant old, QVariant current);
    void onDoubleClick(QVariant node);
    void onHoveredNode(QVariant node);
    void onEndLabelEdit(QVariant node, QString label);

private:
    // Raises the event made for the node's row; nothing for a node that names no row.
    template<typename MakeEvent>
    void raise(const QVariant& node, MakeEvent makeEvent);

    qwxTreeCtrl* m_tree;
    EventHandler<qwxTreeEvent> m_handler;
};

// Turns the tree view's drag signals into drag events about the rows' ids.
class QmlDragDropCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlDragDropCallback)

public:
    QmlDragDropCallback(qwxTreeCtrl* tree, EventHandler<qwxDragDropEvent> handler);

public Q_SLOTS:
    void onEndDrag(QVariant nodes, QVariant node, int keyModifiers, QVariant dropType);
    void onBeginDrag(QVariant nodes, int keyModifiers);

private:
    // Empty when any of the nodes names no row.
    std::vector<qwxTreeItemId> itemsOf(const QVariant& nodes) const;

    qwxTreeCtrl* m_tree;
    EventHandler<qwxDragDropEvent> m_handler;
};

} // namespace dbr
