#include "visiblerows.h"

#include <algorithm>
#include <iterator>

namespace dbr::components {

namespace {

// Rows from the top down to index: comparing these orders nodes as the list does.
QVector<int> treePath(QModelIndex index)
{
    QVector<int> path;
    for (; index.isValid(); index = index.parent())
        path.prepend(index.row());
    return path;
}

int levelOf(QModelIndex index)
{
    int level = 0;
    for (; index.isValid(); index = index.parent())
        ++level;
    return level;
}

} // namespace

VisibleRows::VisibleRows(QObject* parent)
    : QAbstractProxyModel(parent)
{}

VisibleRows::~VisibleRows() = default;

void VisibleRows::setSourceModel(QAbstractItemModel* source)
{
    beginResetModel();
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    QAbstractProxyModel::setSourceModel(source);
    m_rows.clear();
    m_expanded.clear();
    if (source) {
        for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(source, signal, this, &VisibleRows::scheduleRebuild);
        connect(source, &QAbstractItemModel::rowsMoved, this, &VisibleRows::scheduleRebuild);
        connect(source, &QAbstractItemModel::layoutChanged, this, &VisibleRows::scheduleRebuild);
        connect(source, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
            beginResetModel();
            m_rows.clear();
        });
        connect(source, &QAbstractItemModel::modelReset, this, [this] {
            collectShown({}, m_rows);
            endResetModel();
        });
        connect(source, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles) {
                    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
                        const QModelIndex shown = mapFromSource(topLeft.siblingAtRow(row));
                        if (shown.isValid())
                            Q_EMIT dataChanged(shown, shown, roles);
                    }
                });
        collectShown({}, m_rows);
    }
    endResetModel();
}

QModelIndex VisibleRows::index(int row, int column, const QModelIndex& parent) const
{
    if (parent.isValid() || column != 0 || row < 0 || row >= m_rows.size())
        return {};
    return createIndex(row, column);
}

QModelIndex VisibleRows::parent(const QModelIndex&) const
{
    return {};
}

int VisibleRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int VisibleRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

bool VisibleRows::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QVariant VisibleRows::data(const QModelIndex& index, int role) const
{
    const QModelIndex source = mapToSource(index);
    if (!source.isValid())
        return {};
    switch (role) {
    case LevelRole: return levelOf(source);
    case ExpandableRole: return sourceModel()->hasChildren(source);
    case ExpandedRole: return m_expanded.contains(source);
    }
    return source.data(role);
}

QHash<int, QByteArray> VisibleRows::roleNames() const
{
    QHash<int, QByteArray> names = sourceModel() ? sourceModel()->roleNames() : QAbstractProxyModel::roleNames();
    names.insert(LevelRole, QByteArrayLiteral("level"));
    names.insert(ExpandableRole, QByteArrayLiteral("expandable"));
    names.insert(ExpandedRole, QByteArrayLiteral("expanded"));
    return names;
}

QModelIndex VisibleRows::mapToSource(const QModelIndex& proxyIndex) const
{
    if (!proxyIndex.isValid() || proxyIndex.model() != this || proxyIndex.row() >= m_rows.size())
        return {};
    return m_rows[proxyIndex.row()];
}

// The list is in tree order, so a binary search on the rows' paths finds a node.
// A row removed since the last rebuild reads as an empty path and is stepped over.
QModelIndex VisibleRows::mapFromSource(const QModelIndex& sourceIndex) const
{
    if (!sourceIndex.isValid() || sourceIndex.model() != sourceModel())
        return {};
    const QVector<int> target = treePath(sourceIndex);
    int first = 0;
    int last = m_rows.size() - 1;
    while (first <= last) {
        int middle = first + (last - first) / 2;
        while (middle <= last && !m_rows[middle].isValid())
            ++middle;
        if (middle > last) {
            last = first + (last - first) / 2 - 1;
            continue;
        }
        const QVector<int> path = treePath(m_rows[middle]);
        if (path == target)
            return m_rows[middle] == sourceIndex ? createIndex(middle, 0) : QModelIndex();
        if (path < target)
            first = middle + 1;
        else
            last = middle - 1;
    }
    return {};
}

void VisibleRows::expand(const QModelIndex& sourceIndex)
{
    if (!sourceIndex.isValid() || m_expanded.contains(sourceIndex))
        return;
    m_expanded.insert(sourceIndex);
    const QModelIndex shown = mapFromSource(sourceIndex);
    if (!shown.isValid())
        return;
    QVector<QPersistentModelIndex> below;
    collectShown(sourceIndex, below);
    if (!below.isEmpty()) {
        const int first = shown.row() + 1;
        beginInsertRows({}, first, first + below.size() - 1);
        m_rows.insert(first, below.size(), QPersistentModelIndex());
        std::copy(below.begin(), below.end(), m_rows.begin() + first);
        endInsertRows();
    }
    Q_EMIT dataChanged(shown, shown, {ExpandedRole});
}

void VisibleRows::collapse(const QModelIndex& sourceIndex)
{
    if (!m_expanded.remove(sourceIndex))
        return;
    const QModelIndex shown = mapFromSource(sourceIndex);
    if (!shown.isValid())
        return;
    // The rows below it are those after it that stand deeper, up to the first that doesn't.
    const int level = levelOf(sourceIndex);
    int end = shown.row() + 1;
    while (end < m_rows.size() && (!m_rows[end].isValid() || levelOf(m_rows[end]) > level))
        ++end;
    if (end > shown.row() + 1) {
        beginRemoveRows({}, shown.row() + 1, end - 1);
        m_rows.erase(m_rows.begin() + shown.row() + 1, m_rows.begin() + end);
        endRemoveRows();
    }
    Q_EMIT dataChanged(shown, shown, {ExpandedRole});
}

bool VisibleRows::isExpanded(const QModelIndex& sourceIndex) const
{
    return sourceIndex.isValid() && m_expanded.contains(sourceIndex);
}

void VisibleRows::scheduleRebuild()
{
    if (m_rebuildScheduled)
        return;
    m_rebuildScheduled = true;
    QMetaObject::invokeMethod(this, &VisibleRows::rebuild, Qt::QueuedConnection);
}

// The new list replaces the old where they differ: the rows they share at both
// ends stay, so a view keeps them, and what lies between is removed and inserted.
void VisibleRows::rebuild()
{
    m_rebuildScheduled = false;
    for (auto expanded = m_expanded.begin(); expanded != m_expanded.end();)
        expanded = expanded->isValid() ? std::next(expanded) : m_expanded.erase(expanded);
    QVector<QPersistentModelIndex> fresh;
    if (sourceModel())
        collectShown({}, fresh);
    const int shared = std::min(m_rows.size(), fresh.size());
    int front = 0;
    while (front < shared && m_rows[front].isValid() && m_rows[front] == fresh[front])
        ++front;
    int back = 0;
    while (back < shared - front && m_rows[m_rows.size() - 1 - back].isValid() &&
           m_rows[m_rows.size() - 1 - back] == fresh[fresh.size() - 1 - back])
        ++back;
    if (m_rows.size() - back > front) {
        beginRemoveRows({}, front, m_rows.size() - back - 1);
        m_rows.erase(m_rows.begin() + front, m_rows.end() - back);
        endRemoveRows();
    }
    if (fresh.size() - back > front) {
        beginInsertRows({}, front, fresh.size() - back - 1);
        m_rows.insert(front, fresh.size() - back - front, QPersistentModelIndex());
        std::copy(fresh.begin() + front, fresh.end() - back, m_rows.begin() + front);
        endInsertRows();
    }
    reportStateOfAll();
}

void VisibleRows::collectShown(const QModelIndex& parent, QVector<QPersistentModelIndex>& shown) const
{
    QAbstractItemModel* source = sourceModel();
    for (int row = 0, count = source->rowCount(parent); row < count; ++row) {
        const QModelIndex child = source->index(row, 0, parent);
        shown.append(child);
        if (m_expanded.contains(child))
            collectShown(child, shown);
    }
}

// Rows that stayed may have got or lost children, which their expander shows.
void VisibleRows::reportStateOfAll()
{
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, 0), {ExpandableRole, ExpandedRole});
}

} // namespace dbr::components
