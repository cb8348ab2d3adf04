// The tree half of QmlChildList's connections, beside the tree control they
// need, so that core knows no tree.
#include "qwxtreectrl.h"
#include "treecallbacks_p.h"

#include <dlgbridge/core/qmlchildlist.h>

namespace dbr {

namespace {

const QStringList treeTypes{QStringLiteral("qwxTreeCtrl")};

} // namespace

template<typename Callback, typename Event>
void QmlChildList::connectTree(const char* signal, const char* slot, const OdString& name, EventHandler<Event> handler)
{
    // The tree found here, not the wrapper of each connected item, is the events' source.
    qwxTreeCtrl* tree = child<qwxTreeCtrl>(name);
    if (!tree)
        return;
    connectToSignal(
        signal, name, [tree, &handler](qwxWindow*) { return std::make_unique<Callback>(tree, handler); }, treeTypes,
        slot);
}

void QmlChildList::connectToTreeSelChangedEvent(const OdString& name, EventHandler<qwxTreeEvent> handler)
{
    connectTree<QmlTreeCallback>("2currentChanged(QVariant,QVariant)", "1onTreeSelectEvent(QVariant,QVariant)", name,
                                 std::move(handler));
}

void QmlChildList::connectToLeftDoubleClick(const OdString& name, EventHandler<qwxTreeEvent> handler)
{
    connectTree<QmlTreeCallback>("2doubleClicked(QVariant)", "1onDoubleClick(QVariant)", name, std::move(handler));
}

void QmlChildList::connectToTreeItemGetToolTip(const OdString& name, EventHandler<qwxTreeEvent> handler)
{
    connectTree<QmlTreeCallback>("2hoveredNode(QVariant)", "1onHoveredNode(QVariant)", name, std::move(handler));
}

void QmlChildList::connectToEndLabelEdit(const OdString& name, EventHandler<qwxTreeEvent> handler)
{
    connectTree<QmlTreeCallback>("2endLabelEdit(QVariant,QString)", "1onEndLabelEdit(QVariant,QString)", name,
                                 std::move(handler));
}

void QmlChildList::connectToBeginDrag(const OdString& name, EventHandler<qwxDragDropEvent> handler)
{
    connectTree<QmlDragDropCallback>("2beginDrag(QVariant,int)", "1onBeginDrag(QVariant,int)", name,
                                     std::move(handler));
}

void QmlChildList::connectToEndDrag(const OdString& name, EventHandler<qwxDragDropEvent> handler)
{
    connectTree<QmlDragDropCallback>("2endDrag(QVariant,QVariant,int, QVariant)",
                                     "1onEndDrag(QVariant,QVariant,int, QVariant)", name, std::move(handler));
}

void QmlChildList::connectToBeginLabelEdit(const OdString& name, EventHandler<qwxTreeEvent> handler)
{
    if (qwxTreeCtrl* tree = child<qwxTreeCtrl>(name))
        tree->setBeginLabelEditCallback(std::move(handler));
}

} // namespace dbr
