#include "sortfilterselectmodel.h"

#include <KDescendantsProxyModel>

#include <QItemSelectionModel>
#include <QSet>
#include <QVector>

#include <utility>

namespace dbr::components {

namespace {

// Rows from the top down to index: ordering these orders nodes as a flattened tree lists them.
QVector<int> treePath(QModelIndex index)
{
    QVector<int> path;
    for (; index.isValid(); index = index.parent())
        path.prepend(index.row());
    return path;
}

// KDescendantsProxyModel finds a source index by scanning every block of rows it
// maps, so expanding n nodes one by one costs n squared: 10,000 take seconds. Its
// rows list the visible nodes in tree order, so a binary search finds one in log n.
class VisibleRows : public KDescendantsProxyModel
{
public:
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override
    {
        // Without rows it maps nothing, as the base has it (hasChildren() is !mapping.isEmpty()).
        if (!sourceIndex.isValid() || sourceIndex.model() != sourceModel() || !hasChildren() ||
            !isSourceIndexVisible(sourceIndex))
            return {};
        const QVector<int> target = treePath(sourceIndex);
        int first = 0;
        int last = rowCount() - 1;
        while (first <= last) {
            const int middle = first + (last - first) / 2;
            const QVector<int> path = treePath(mapToSource(createIndex(middle, 0)));
            if (path == target)
                return createIndex(middle, sourceIndex.column());
            if (path < target)
                first = middle + 1;
            else
                last = middle - 1;
        }
        return {};
    }
};

} // namespace

class SortFilterSelectModel::Private
{
public:
    explicit Private(SortFilterSelectModel* model)
        : q(model)
        , selection(model)
    {}

    bool owns(const QModelIndex& index) const { return index.isValid() && index.model() == q; }
    void expandWhereWanted(const QModelIndex& index);
    void reportSelection();
    void collapsePending();
    // The expanded nodes below parent that stay so, parents before their children, shown or not.
    void collectStillExpanded(const QModelIndex& parent, QVector<QPersistentModelIndex>& expanded) const;

    SortFilterSelectModel* const q;
    VisibleRows rows;
    QItemSelectionModel selection;
    QModelIndexList reportedSelection;
    // Collapses asked for in this turn of the event loop, made together at its end.
    QSet<QPersistentModelIndex> collapsing;
};

// Parents come before their children, which keeps each expansion cheap.
void SortFilterSelectModel::Private::expandWhereWanted(const QModelIndex& index)
{
    if (index.isValid() && index.data(WantsToBeExpandedRole).toBool())
        rows.expandSourceIndex(index);
    for (int row = 0, count = q->rowCount(index); row < count; ++row)
        expandWhereWanted(q->index(row, 0, index));
}

// The flattening rebuilds all of its rows for each collapse, so a thousand
// collapses in a row (a wrapper's CollapseAll) would take minutes. One alone is
// made as such; more are made by starting the flattening afresh and expanding
// again what stays expanded, which costs no more than one expansion each.
void SortFilterSelectModel::Private::collapsePending()
{
    if (collapsing.size() == 1 && collapsing.begin()->isValid() && rows.isSourceIndexVisible(*collapsing.begin())) {
        rows.collapseSourceIndex(*std::exchange(collapsing, {}).begin());
        return;
    }
    QVector<QPersistentModelIndex> stillExpanded;
    collectStillExpanded({}, stillExpanded);
    collapsing.clear();
    rows.setSourceModel(nullptr);
    rows.setSourceModel(q);
    for (const QPersistentModelIndex& index : qAsConst(stillExpanded))
        rows.expandSourceIndex(index);
}

void SortFilterSelectModel::Private::collectStillExpanded(const QModelIndex& parent,
                                                          QVector<QPersistentModelIndex>& expanded) const
{
    for (int row = 0, count = q->rowCount(parent); row < count; ++row) {
        const QModelIndex child = q->index(row, 0, parent);
        // Nodes below collapsed ones keep their state too, for when they are shown.
        if (rows.isSourceIndexExpanded(child) && !collapsing.contains(child))
            expanded.append(child);
        if (q->hasChildren(child))
            collectStillExpanded(child, expanded);
    }
}

// The source rows of the selection change with the rows around them, not only with the selection.
void SortFilterSelectModel::Private::reportSelection()
{
    QModelIndexList selected = q->selectedSourceRows();
    if (selected == reportedSelection)
        return;
    reportedSelection = std::move(selected);
    Q_EMIT q->selectedSourceRowsChanged();
}

SortFilterSelectModel::SortFilterSelectModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , d(std::make_unique<Private>(this))
{
    // The flattening reacts to a change of this model before the handlers below, which expand in it.
    d->rows.setExpandsByDefault(false);
    d->rows.setSourceModel(this);

    connect(&d->selection, &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected, const QItemSelection& deselected) {
                for (const QItemSelectionRange& range : selected + deselected)
                    Q_EMIT dataChanged(range.topLeft(), range.bottomRight(), {SelectedRole});
                d->reportSelection();
            });
    connect(&d->selection, &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex& previous) {
                for (const QModelIndex& index : {previous, current}) {
                    if (index.isValid())
                        Q_EMIT dataChanged(index, index, {CurrentRole});
                }
                Q_EMIT currentIndexChanged(current, previous);
            });
    connect(this, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& parent, int first, int last) {
        for (int row = first; row <= last; ++row)
            d->expandWhereWanted(index(row, 0, parent));
        d->reportSelection();
    });
    connect(this, &QAbstractItemModel::modelReset, this, [this] {
        d->expandWhereWanted({});
        d->reportSelection();
    });
    const auto reportSelection = [this] { d->reportSelection(); };
    connect(this, &QAbstractItemModel::rowsRemoved, this, reportSelection);
    connect(this, &QAbstractItemModel::rowsMoved, this, reportSelection);
    connect(this, &QAbstractItemModel::layoutChanged, this, reportSelection);
}

SortFilterSelectModel::~SortFilterSelectModel() = default;

QVariant SortFilterSelectModel::data(const QModelIndex& index, int role) const
{
    if (index.isValid() && role == SelectedRole)
        return d->selection.isSelected(index);
    if (index.isValid() && role == CurrentRole)
        return index == d->selection.currentIndex();
    return QSortFilterProxyModel::data(index, role);
}

QHash<int, QByteArray> SortFilterSelectModel::roleNames() const
{
    QHash<int, QByteArray> names = QSortFilterProxyModel::roleNames();
    names.insert(WantsToBeExpandedRole, QByteArrayLiteral("wantsToBeExpanded"));
    names.insert(SelectedRole, QByteArrayLiteral("selected"));
    names.insert(CurrentRole, QByteArrayLiteral("current"));
    return names;
}

QVariant SortFilterSelectModel::roleData(const QModelIndex& index, const QByteArray& roleName) const
{
    const int role = roleNames().key(roleName, -1);
    return d->owns(index) && role >= 0 ? data(index, role) : QVariant();
}

QModelIndexList SortFilterSelectModel::selectedSourceRows() const
{
    QModelIndexList sourceRows;
    const QModelIndexList rows = d->selection.selectedRows();
    for (const QModelIndex& row : rows)
        sourceRows.append(mapToSource(row));
    return sourceRows;
}

QModelIndex SortFilterSelectModel::currentIndex() const
{
    return d->selection.currentIndex();
}

QAbstractItemModel* SortFilterSelectModel::visibleRows() const
{
    return &d->rows;
}

void SortFilterSelectModel::leftClickSelection(const QModelIndex& index)
{
    if (d->owns(index))
        d->selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void SortFilterSelectModel::ctrlSelection(const QModelIndex& index)
{
    if (d->owns(index))
        d->selection.setCurrentIndex(index, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}

void SortFilterSelectModel::clearSelection()
{
    d->selection.clearSelection();
}

QModelIndexList SortFilterSelectModel::selectedRows() const
{
    return d->selection.selectedRows();
}

void SortFilterSelectModel::expand(const QModelIndex& index)
{
    if (!d->owns(index))
        return;
    d->collapsing.remove(index);
    d->rows.expandSourceIndex(index);
}

void SortFilterSelectModel::collapse(const QModelIndex& index)
{
    if (!isExpanded(index))
        return;
    if (d->collapsing.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { d->collapsePending(); }, Qt::QueuedConnection);
    d->collapsing.insert(index);
}

bool SortFilterSelectModel::isExpanded(const QModelIndex& index) const
{
    return d->owns(index) && d->rows.isSourceIndexExpanded(index) && !d->collapsing.contains(index);
}

} // namespace dbr::components
