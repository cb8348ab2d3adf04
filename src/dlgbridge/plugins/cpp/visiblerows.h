#pragma once

#include <QAbstractProxyModel>
#include <QPersistentModelIndex>
#include <QSet>
#include <QVector>

namespace dbr::components {

// The rows of a tree that a view shows, as one list: every top-level row, and
// below each expanded row its children, in tree order. Expanding and
// collapsing change the list at once; changes of the tree's structure are
// taken in together at the end of the turn of the event loop, and until then
// the list keeps its rows (a removed one reads empty).
//
// KDescendantsProxyModel (KF5 5.103, Debian 12) does this job in principle,
// but crashes when a sorted tree moves an expanded row, hangs when a filter
// removes rows, and collapses in time proportional to all it shows.
class VisibleRows : public QAbstractProxyModel
{
    Q_OBJECT

public:
    enum Roles {
        // How deep the row is: 1 for a top-level row.
        LevelRole = 0x2F3D61B0,
        ExpandableRole,
        ExpandedRole,
    };

    explicit VisibleRows(QObject* parent = nullptr);
    ~VisibleRows() override;

    void setSourceModel(QAbstractItemModel* source) override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;
    QModelIndex mapToSource(const QModelIndex& proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override;

    // A node expanded below a collapsed one shows its children once it is shown itself.
    void expand(const QModelIndex& sourceIndex);
    void collapse(const QModelIndex& sourceIndex);
    bool isExpanded(const QModelIndex& sourceIndex) const;

private:
    void scheduleRebuild();
    void rebuild();
    // Appends the shown rows below parent, in tree order.
    void collectShown(const QModelIndex& parent, QVector<QPersistentModelIndex>& shown) const;
    void reportStateOfAll();

    QVector<QPersistentModelIndex> m_rows;
    QSet<QPersistentModelIndex> m_expanded;
    bool m_rebuildScheduled = false;
};

} // namespace dbr::components
