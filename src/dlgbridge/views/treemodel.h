#pragma once

#include <dlgbridge/views/treeitem.h>

#include <QAbstractItemModel>
#include <QVector>
#include <QtGlobal>

#include <qut/itemroles.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace qut {

// What a read-only walk's visitor answers for a node.
enum class TreeWalk {
    Continue = 0,
    Stop = 1,
    SkipChildren = 2,
};

// What an editing walk's visitor answers for a node.
enum class TreeWalkEdit {
    Continue = 0,
    Stop = 1,
    SkipChildren = 2,
    // Deletes the node with its subtree; the walk goes on with the next sibling.
    Delete = 3,
};

// An item model over a tree of owned nodes carrying a payload T. The tree is
// the truth and an index only a view of it: its internal pointer is the node.
// Keep node pointers, not indexes, across changes. A subclass says what the
// columns and roles mean through columnCount, dataImpl and setDataImpl.
//
// Nodes don't store their row, so every index made from a node searches its
// parent's children for it: a parent with n children pays O(n) per index.
template<typename T>
class TreeModel : public QAbstractItemModel
{
public:
    using Item = TreeItem<T>;

    explicit TreeModel(QObject* parent = nullptr)
        : QAbstractItemModel(parent)
    {}
    ~TreeModel() override = default;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    virtual bool setDataImpl(const QModelIndex& index, const QVariant& value, int role);
    virtual QVariant dataImpl(const QModelIndex& index, int role) const = 0;

    // The root is never shown; the invalid index stands for it.
    Item* root() { return &m_root; }
    const Item* root() const { return &m_root; }
    QModelIndex rootIndex() const { return QModelIndex(); }

    Item* getTreeItem(const QModelIndex& index) { return static_cast<Item*>(pointerOf(index)); }
    const Item* getTreeItem(const QModelIndex& index) const { return static_cast<const Item*>(pointerOf(index)); }
    Item* getTreeItemOrRoot(const QModelIndex& index);
    const Item* getTreeItemOrRoot(const QModelIndex& index) const;

    // Invalid for null and for the root. The row is taken as given.
    QModelIndex createItemIndex(int row, int column, const Item* item) const;
    QModelIndex createItemIndex(const Item* item) const;

    // Null, with the item destroyed, when position is outside 0 to the number
    // of children. Views see a begin/end pair for that row either way.
    Item* insertItem(Item& parent, int position, std::unique_ptr<Item> item);
    Item* appendItem(Item& parent, std::unique_ptr<Item> item);
    // Always to the last row of newParent, even when it is the current parent.
    // The node keeps its address and subtree; indexes to it don't survive.
    // Null, with nothing changed, for the root or a move into its own subtree.
    Item* moveItem(Item& item, Item& newParent);
    void deleteChildren(Item& item);
    void deleteItem(Item& parent, int row);
    void deleteItem(Item& parent, Item& child);
    // Empties the tree; the root's payload stays.
    void reset();
    // Reports roles as changed when updater says it changed the payload.
    void update(const QModelIndex& index, const std::function<bool(T&)>& updater, const QVector<int>& roles);

    // The first node in walk order that matches.
    const Item* findInTree(const std::function<bool(const Item&)>& predicate) const;
    // Visits start (unless it is the root), then all children of a node before
    // any grandchild, entering the subtrees last-pushed first.
    void traverseTree(const std::function<TreeWalk(const Item&)>& visitor,
                      const QModelIndex& start = QModelIndex()) const;
    // The same order; a visitor may delete the node it is given, and nothing else.
    void traverseTree(const std::function<TreeWalkEdit(Item&)>& visitor, const QModelIndex& start = QModelIndex());

private:
    static void* pointerOf(const QModelIndex& index) { return index.isValid() ? index.internalPointer() : nullptr; }
    static int rowOf(const Item& item);
    static int rowOf(const Item& parent, const Item& child);
    std::unique_ptr<Item> takeRow(Item& parent, int row);

    Item m_root;
};

template<typename T>
QModelIndex TreeModel<T>::index(int row, int column, const QModelIndex& parent) const
{
    if (parent.isValid() && parent.column() != 0)
        return QModelIndex();
    const Item* owner = getTreeItemOrRoot(parent);
    if (row < 0 || row >= static_cast<int>(owner->children.size()))
        return QModelIndex();
    const Item* child = owner->children[static_cast<std::size_t>(row)].get();
    if (!child || child == &m_root)
        return QModelIndex();
    return createIndex(row, column, const_cast<Item*>(child));
}

template<typename T>
QModelIndex TreeModel<T>::parent(const QModelIndex& index) const
{
    const Item* item = getTreeItem(index);
    if (!item || !item->parent || item->parent == &m_root)
        return QModelIndex();
    return createItemIndex(item->parent);
}

template<typename T>
int TreeModel<T>::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return static_cast<int>(getTreeItemOrRoot(parent)->children.size());
}

template<typename T>
QVariant TreeModel<T>::data(const QModelIndex& index, int role) const
{
    if (role != getWantsToBeExpandedRole())
        return dataImpl(index, role);
    const Item* item = getTreeItem(index);
    return item ? QVariant(item->wantsToBeExpanded) : QVariant();
}

template<typename T>
bool TreeModel<T>::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != getWantsToBeExpandedRole())
        return setDataImpl(index, value, role);
    Item* item = getTreeItem(index);
    if (value.type() != QVariant::Bool || !item)
        return false;
    item->wantsToBeExpanded = value.toBool();
    return true;
}

template<typename T>
bool TreeModel<T>::setDataImpl(const QModelIndex&, const QVariant&, int)
{
    return false;
}

template<typename T>
typename TreeModel<T>::Item* TreeModel<T>::getTreeItemOrRoot(const QModelIndex& index)
{
    Item* item = getTreeItem(index);
    return item ? item : &m_root;
}

template<typename T>
const typename TreeModel<T>::Item* TreeModel<T>::getTreeItemOrRoot(const QModelIndex& index) const
{
    const Item* item = getTreeItem(index);
    return item ? item : &m_root;
}

template<typename T>
QModelIndex TreeModel<T>::createItemIndex(int row, int column, const Item* item) const
{
    if (!item || item == &m_root)
        return QModelIndex();
    return createIndex(row, column, const_cast<Item*>(item));
}

template<typename T>
QModelIndex TreeModel<T>::createItemIndex(const Item* item) const
{
    if (!item || item == &m_root)
        return QModelIndex();
    return createIndex(rowOf(*item), 0, const_cast<Item*>(item));
}

template<typename T>
typename TreeModel<T>::Item* TreeModel<T>::insertItem(Item& parent, int position, std::unique_ptr<Item> item)
{
    Q_ASSERT(item);
    // Nothing is announced for a row that never arrives: a proxy above would
    // keep it and trip over it at the next change.
    if (position < 0 || position > static_cast<int>(parent.children.size())) {
        qDebug("Trying to insert item out of bounds");
        return nullptr;
    }
    beginInsertRows(createItemIndex(&parent), position, position);
    item->parent = &parent;
    Item* inserted = item.get();
    parent.children.insert(parent.children.begin() + position, std::move(item));
    endInsertRows();
    return inserted;
}

template<typename T>
typename TreeModel<T>::Item* TreeModel<T>::appendItem(Item& parent, std::unique_ptr<Item> item)
{
    return insertItem(parent, static_cast<int>(parent.children.size()), std::move(item));
}

template<typename T>
typename TreeModel<T>::Item* TreeModel<T>::moveItem(Item& item, Item& newParent)
{
    // The root and a node not yet inserted have nowhere to be moved from, and
    // a node moved into its own subtree would own itself and leave the tree.
    if (!item.parent)
        return nullptr;
    for (const Item* above = &newParent; above; above = above->parent) {
        if (above == &item)
            return nullptr;
    }
    Item& oldParent = *item.parent;
    // Views see a removal and an insertion; there is no move to announce.
    return appendItem(newParent, takeRow(oldParent, rowOf(item)));
}

template<typename T>
void TreeModel<T>::deleteChildren(Item& item)
{
    if (item.children.empty())
        return;
    beginRemoveRows(createItemIndex(&item), 0, static_cast<int>(item.children.size()) - 1);
    item.children.clear();
    endRemoveRows();
}

template<typename T>
void TreeModel<T>::deleteItem(Item& parent, int row)
{
    if (row < 0 || row >= static_cast<int>(parent.children.size()))
        return;
    takeRow(parent, row);
}

template<typename T>
void TreeModel<T>::deleteItem(Item& parent, Item& child)
{
    const int row = rowOf(parent, child);
    if (row >= 0)
        takeRow(parent, row);
}

template<typename T>
void TreeModel<T>::reset()
{
    beginResetModel();
    m_root.children.clear();
    endResetModel();
}

template<typename T>
void TreeModel<T>::update(const QModelIndex& index, const std::function<bool(T&)>& updater, const QVector<int>& roles)
{
    Item* item = getTreeItem(index);
    if (!item)
        return;
    if (updater(item->data))
        Q_EMIT dataChanged(index, index, roles);
}

template<typename T>
const typename TreeModel<T>::Item* TreeModel<T>::findInTree(const std::function<bool(const Item&)>& predicate) const
{
    const Item* found = nullptr;
    traverseTree([&](const Item& item) {
        if (!predicate(item))
            return TreeWalk::Continue;
        found = &item;
        return TreeWalk::Stop;
    });
    return found;
}

template<typename T>
void TreeModel<T>::traverseTree(const std::function<TreeWalk(const Item&)>& visitor, const QModelIndex& start) const
{
    if (const Item* first = getTreeItem(start)) {
        if (visitor(*first) != TreeWalk::Continue)
            return;
    }
    std::vector<QModelIndex> pending{start};
    while (!pending.empty()) {
        const QModelIndex current = pending.back();
        pending.pop_back();
        const Item* owner = getTreeItemOrRoot(current);
        for (int row = 0; row < static_cast<int>(owner->children.size()); ++row) {
            const QModelIndex childIndex = index(row, 0, current);
            const Item* child = getTreeItem(childIndex);
            if (!child)
                continue;
            switch (visitor(*child)) {
            case TreeWalk::Continue: pending.push_back(childIndex); break;
            case TreeWalk::Stop: return;
            case TreeWalk::SkipChildren: break;
            }
        }
    }
}

template<typename T>
void TreeModel<T>::traverseTree(const std::function<TreeWalkEdit(Item&)>& visitor, const QModelIndex& start)
{
    if (Item* first = getTreeItem(start)) {
        switch (visitor(*first)) {
        case TreeWalkEdit::Continue: break;
        case TreeWalkEdit::Stop:
        case TreeWalkEdit::SkipChildren: return;
        case TreeWalkEdit::Delete:
            // A start node outside any tree has nothing to be deleted from.
            if (first->parent) {
                deleteItem(*first->parent, *first);
                return;
            }
            break;
        }
    }
    std::vector<QModelIndex> pending{start};
    while (!pending.empty()) {
        const QModelIndex current = pending.back();
        pending.pop_back();
        Item* owner = getTreeItemOrRoot(current);
        // The count is read afresh on every step, since a deletion shortens it
        // and moves the next sibling into the same row.
        for (int row = 0; row < static_cast<int>(owner->children.size());) {
            const QModelIndex childIndex = index(row, 0, current);
            Item* child = getTreeItem(childIndex);
            if (!child) {
                ++row;
                continue;
            }
            switch (visitor(*child)) {
            case TreeWalkEdit::Continue:
                pending.push_back(childIndex);
                ++row;
                break;
            case TreeWalkEdit::Stop: return;
            case TreeWalkEdit::SkipChildren: ++row; break;
            case TreeWalkEdit::Delete: deleteItem(*owner, row); break;
            }
        }
    }
}

template<typename T>
int TreeModel<T>::rowOf(const Item& item)
{
    if (!item.parent)
        return 0;
    return std::max(rowOf(*item.parent, item), 0);
}

// -1, with a warning, when child isn't among parent's children.
template<typename T>
int TreeModel<T>::rowOf(const Item& parent, const Item& child)
{
    const auto& siblings = parent.children;
    const auto found = std::find_if(siblings.begin(), siblings.end(),
                                    [&child](const std::unique_ptr<Item>& slot) { return slot.get() == &child; });
    if (found == siblings.end()) {
        qWarning("Tree child item not found in parent");
        return -1;
    }
    return static_cast<int>(found - siblings.begin());
}

// The node stays in its slot until the removal is under way: observers check
// the whole model when told of it, and a row without a node would fail them.
template<typename T>
std::unique_ptr<typename TreeModel<T>::Item> TreeModel<T>::takeRow(Item& parent, int row)
{
    beginRemoveRows(createItemIndex(&parent), row, row);
    const auto slot = parent.children.begin() + row;
    std::unique_ptr<Item> taken = std::move(*slot);
    parent.children.erase(slot);
    endRemoveRows();
    return taken;
}

} // namespace qut
