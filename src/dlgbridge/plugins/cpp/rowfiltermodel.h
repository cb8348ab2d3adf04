#pragma once

#include <QRegularExpression>
#include <QSortFilterProxyModel>

#include <memory>

namespace dbr::components {

// What a list or table view shows of its source: the rows that pass the
// filter, sorted or not, plus the view's current row. The current row is kept
// as a row of the source, so it stays the same row while the filter changes
// what is shown, and follows the row when rows come and go before it.
//
// Rows given to and by the view's interface are source rows; a view asks
// sourceRow and proxyRow for the way between the two.
class RowFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(int currentSourceRow READ currentSourceRow WRITE setCurrentSourceRow NOTIFY currentSourceRowChanged)
    // The current row as shown; -1 while the filter hides it.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
    // The filter as a view sets it: a pattern of plain text is matched as text, much faster.
    Q_PROPERTY(QRegularExpression filterPattern READ filterRegularExpression WRITE setFilterPattern)
    Q_DISABLE_COPY(RowFilterModel)

public:
    explicit RowFilterModel(QObject* parent = nullptr);
    ~RowFilterModel() override;

    void setSourceModel(QAbstractItemModel* source) override;
    // A check mark belongs to the row: every column answers the first one's.
    QVariant data(const QModelIndex& index, int role) const override;

    void setFilterPattern(const QRegularExpression& pattern);

    int currentSourceRow() const;
    void setCurrentSourceRow(int row);
    int currentRow() const;

    // A negative column shows the source's order again.
    Q_INVOKABLE void sortBy(int column, Qt::SortOrder order = Qt::AscendingOrder);
    Q_INVOKABLE int sourceRow(int row) const;
    Q_INVOKABLE int proxyRow(int sourceRow) const;
    // The source's data of a source row; for what a view needs beyond the roles of its delegates.
    Q_INVOKABLE QVariant sourceData(int sourceRow, int column, const QString& roleName) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

Q_SIGNALS:
    void currentSourceRowChanged();
    void currentRowChanged();

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr::components
