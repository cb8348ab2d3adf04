#include "sortfilterselectmodel.h"

#include "visiblerows.h"

#include <QItemSelectionModel>
#include <QVector>

#include <utility>

namespace dbr::components {

class SortFilterSelectModel::Private
{
public:
    explicit Private(SortFilterSelectModel* model)
        : q(model)
        , selection(model)
    {}

    bool owns(const QModelIndex& index) const { return index.isValid() && index.model() == q; }
    void expandWhereWanted(const QModelIndex& index);
    void expandInsertedWhereWanted();
    void reportSelection();

    SortFilterSelectModel* const q;
    VisibleRows rows;
    QItemSelectionModel selection;
    QModelIndexList reportedSelection;
    // Rows inserted in this turn of the event loop: a tree marks a new row as one
    // to expand only after it has announced it.
    QVector<QPersistentModelIndex> inserted;
};

// Parents come before their children, which keeps each expansion cheap.
void SortFilterSelectModel::Private::expandWhereWanted(const QModelIndex& index)
{
    if (index.isValid() && index.data(WantsToBeExpandedRole).toBool())
        rows.expand(index);
    for (int row = 0, count = q->rowCount(index); row < count; ++row)
        expandWhereWanted(q->index(row, 0, index));
}

void SortFilterSelectModel::Private::expandInsertedWhereWanted()
{
    for (const QPersistentModelIndex& index : std::exchange(inserted, {})) {
        if (index.isValid())
            expandWhereWanted(index);
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
        if (d->inserted.isEmpty())
            QMetaObject::invokeMethod(
                this, [this] { d->expandInsertedWhereWanted(); }, Qt::QueuedConnection);
        for (int row = first; row <= last; ++row)
            d->inserted.append(index(row, 0, parent));
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
    if (d->owns(index))
        d->rows.expand(index);
}

void SortFilterSelectModel::collapse(const QModelIndex& index)
{
    if (d->owns(index))
        d->rows.collapse(index);
}

bool SortFilterSelectModel::isExpanded(const QModelIndex& index) const
{
    return d->owns(index) && d->rows.isExpanded(index);
}

} // namespace dbr::components
