#include "treecallbacks_p.h"

#include "qwxtreectrl.h"

#include <QJSValue>
#include <QModelIndex>

namespace dbr {

namespace {

// A view's list of rows may arrive as a JavaScript array, a variant list or an index list.
QVariantList entriesOf(const QVariant& nodes)
{
    if (nodes.userType() == qMetaTypeId<QJSValue>())
        return nodes.value<QJSValue>().toVariant().toList();
    if (nodes.userType() == qMetaTypeId<QModelIndexList>()) {
        QVariantList entries;
        for (const QModelIndex& index : nodes.value<QModelIndexList>())
            entries << QVariant::fromValue(index);
        return entries;
    }
    return nodes.toList();
}

qwxTreeItemId itemIn(const qwxTreeCtrl& tree, const QVariant& node)
{
    return tree.getWxIndexFromSortfilterIndex(node.toModelIndex());
}

} // namespace

QmlTreeCallback::QmlTreeCallback(qwxTreeCtrl* tree, EventHandler<qwxTreeEvent> handler)
    : m_tree(tree)
    , m_handler(std::move(handler))
{}

void QmlTreeCallback::onTreeSelectEvent(QVariant old, QVariant current)
{
    raise(current,
          [this, &old](const qwxTreeItemId& item) { return qwxTreeEvent(item, itemIn(*m_tree, old), m_tree); });
}

void QmlTreeCallback::onDoubleClick(QVariant node)
{
    raise(node, [this](const qwxTreeItemId& item) { return qwxTreeEvent(item, m_tree); });
}

void QmlTreeCallback::onHoveredNode(QVariant node)
{
    raise(node, [this](const qwxTreeItemId& item) { return qwxTreeEvent(item, m_tree); });
}

void QmlTreeCallback::onEndLabelEdit(QVariant node, QString label)
{
    raise(node, [this, &label](const qwxTreeItemId& item) { return qwxTreeEvent(item, label, m_tree); });
}

template<typename MakeEvent>
void QmlTreeCallback::raise(const QVariant& node, MakeEvent makeEvent)
{
    if (!m_tree)
        return;
    const qwxTreeItemId item = itemIn(*m_tree, node);
    if (!item.IsOk())
        return;
    qwxTreeEvent event = makeEvent(item);
    m_handler(event);
}

QmlDragDropCallback::QmlDragDropCallback(qwxTreeCtrl* tree, EventHandler<qwxDragDropEvent> handler)
    : m_tree(tree)
    , m_handler(std::move(handler))
{}

void QmlDragDropCallback::onEndDrag(QVariant nodes, QVariant node, int keyModifiers, QVariant dropType)
{
    if (!m_tree)
        return;
    const std::vector<qwxTreeItemId> sources = itemsOf(nodes);
    if (sources.empty())
        return;
    qwxDragDropEvent event(sources, itemIn(*m_tree, node), keyModifiers, m_tree, EDropPositionType(dropType.toInt()));
    m_handler(event);
}

void QmlDragDropCallback::onBeginDrag(QVariant nodes, int keyModifiers)
{
    if (!m_tree)
        return;
    const std::vector<qwxTreeItemId> sources = itemsOf(nodes);
    if (sources.empty())
        return;
    qwxDragDropEvent event(sources, keyModifiers, m_tree);
    m_handler(event);
}

std::vector<qwxTreeItemId> QmlDragDropCallback::itemsOf(const QVariant& nodes) const
{
    std::vector<qwxTreeItemId> items;
    for (const QVariant& node : entriesOf(nodes)) {
        const qwxTreeItemId item = itemIn(*m_tree, node);
        if (!item.IsOk())
            return {};
        items.push_back(item);
    }
    return items;
}

} // namespace dbr
