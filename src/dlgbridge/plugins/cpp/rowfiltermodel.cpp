#include "rowfiltermodel.h"

#include <QPersistentModelIndex>

#include <optional>

namespace dbr::components {

class RowFilterModel::Private
{
public:
    explicit Private(RowFilterModel& q)
        : q(q)
    {}

    int roleOf(const QByteArray& name) const
    {
        const QAbstractItemModel* source = q.sourceModel();
        return source ? source->roleNames().key(name, -1) : -1;
    }

    int sourceCurrent() const { return q.sourceModel() ? current.row() : plainCurrent; }

    // Tells what moved since the last look: rows come, go and get filtered under a current row.
    // After a reset a view has forgotten its current row, so it is told again.
    void recheck(bool viewForgot = false)
    {
        const int source = sourceCurrent();
        const int shown = q.currentRow();
        if (source != reportedSource) {
            reportedSource = source;
            Q_EMIT q.currentSourceRowChanged();
        }
        if (shown != reportedShown || viewForgot) {
            reportedShown = shown;
            Q_EMIT q.currentRowChanged();
        }
    }

    // The view's choice of row is the row the source flags as selected, where the source has the flag.
    void flagSelected()
    {
        QAbstractItemModel* source = q.sourceModel();
        if (!source || selectedRole < 0)
            return;
        source->setData(current, current.isValid(), selectedRole);
    }

    // A mark changed in the first column shows in every column of the row.
    void spreadCheckMarks(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles)
    {
        const int checked = checkedRole;
        if (checked < 0 || topLeft.column() != 0 || (!roles.isEmpty() && !roles.contains(checked)))
            return;
        const int lastColumn = q.columnCount() - 1;
        if (lastColumn < 1)
            return;
        for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
            const int shown = q.proxyRow(row);
            if (shown >= 0)
                Q_EMIT q.dataChanged(q.index(shown, 1), q.index(shown, lastColumn), {checked});
        }
    }

    RowFilterModel& q;
    QPersistentModelIndex current;
    // The filter's pattern when it is plain text; none when it needs the regular expression.
    std::optional<QString> literalFilter;
    Qt::CaseSensitivity literalCase = Qt::CaseSensitive;
    // Looked up once per source: data() is asked for them on every row the filter reads.
    int checkedRole = -1;
    int selectedRole = -1;
    // Without a source the view shows plain entries, whose rows need no following.
    int plainCurrent = -1;
    int reportedSource = -1;
    int reportedShown = -1;
    QList<QMetaObject::Connection> sourceConnections;
};

RowFilterModel::RowFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , d(std::make_unique<Private>(*this))
{
    const auto recheck = [this] { d->recheck(); };
    connect(this, &QAbstractItemModel::rowsInserted, this, recheck);
    connect(this, &QAbstractItemModel::rowsRemoved, this, recheck);
    connect(this, &QAbstractItemModel::rowsMoved, this, recheck);
    connect(this, &QAbstractItemModel::layoutChanged, this, recheck);
    connect(this, &QAbstractItemModel::modelReset, this, [this] { d->recheck(true); });
}

RowFilterModel::~RowFilterModel() = default;

void RowFilterModel::setSourceModel(QAbstractItemModel* source)
{
    for (const QMetaObject::Connection& connection : std::as_const(d->sourceConnections))
        disconnect(connection);
    d->sourceConnections.clear();
    d->current = QPersistentModelIndex();
    QSortFilterProxyModel::setSourceModel(source);
    d->checkedRole = d->roleOf("checked");
    d->selectedRole = d->roleOf("selected");
    if (source) {
        d->sourceConnections << connect(source, &QAbstractItemModel::dataChanged, this,
                                        [this](const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                               const QVector<int>& roles) {
                                            d->spreadCheckMarks(topLeft, bottomRight, roles);
                                        });
    }
    d->recheck();
}

void RowFilterModel::setFilterPattern(const QRegularExpression& pattern)
{
    static const QRegularExpression special(QStringLiteral("[\\\\^$.|?*+()\\[\\]{}]"));
    const QString text = pattern.pattern();
    d->literalFilter = text.contains(special) ? std::nullopt : std::optional<QString>(text);
    d->literalCase = pattern.patternOptions() & QRegularExpression::CaseInsensitiveOption ? Qt::CaseInsensitive
                                                                                          : Qt::CaseSensitive;
    setFilterRegularExpression(pattern);
}

bool RowFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (!d->literalFilter)
        return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
    if (d->literalFilter->isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(sourceRow, filterKeyColumn(), sourceParent);
    return sourceModel()->data(index, filterRole()).toString().contains(*d->literalFilter, d->literalCase);
}

QVariant RowFilterModel::data(const QModelIndex& index, int role) const
{
    if (index.column() > 0 && role == d->checkedRole)
        return QSortFilterProxyModel::data(index.sibling(index.row(), 0), role);
    return QSortFilterProxyModel::data(index, role);
}

int RowFilterModel::currentSourceRow() const
{
    return d->sourceCurrent();
}

void RowFilterModel::setCurrentSourceRow(int row)
{
    if (QAbstractItemModel* source = sourceModel()) {
        d->current = QPersistentModelIndex(source->index(row, 0));
        d->flagSelected();
    } else {
        d->plainCurrent = std::max(row, -1);
    }
    d->recheck();
}

int RowFilterModel::currentRow() const
{
    return sourceModel() ? proxyRow(d->current.row()) : d->plainCurrent;
}

void RowFilterModel::sortBy(int column, Qt::SortOrder order)
{
    sort(column, order);
}

int RowFilterModel::sourceRow(int row) const
{
    if (!sourceModel())
        return row;
    return mapToSource(index(row, 0)).row();
}

int RowFilterModel::proxyRow(int sourceRow) const
{
    const QAbstractItemModel* source = sourceModel();
    if (!source)
        return sourceRow;
    return mapFromSource(source->index(sourceRow, 0)).row();
}

QVariant RowFilterModel::sourceData(int sourceRow, int column, const QString& roleName) const
{
    const QAbstractItemModel* source = sourceModel();
    if (!source)
        return QVariant();
    return source->data(source->index(sourceRow, column), d->roleOf(roleName.toUtf8()));
}

} // namespace dbr::components
