#pragma once

#include <QSortFilterProxyModel>

#include <memory>

namespace dbr::components {

// The tree a TreeViewAV shows: its source model as it is, plus what a view
// keeps about it, the selection (with the current row), which nodes are
// expanded, and "visibleRows", the rows of expanded nodes as one list. Indexes
// taken and given by its functions are its own unless a name says "source".
class SortFilterSelectModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QModelIndexList selectedSourceRows READ selectedSourceRows NOTIFY selectedSourceRowsChanged)
    Q_PROPERTY(QModelIndex currentIndex READ currentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(QAbstractItemModel* visibleRows READ visibleRows CONSTANT)
    Q_DISABLE_COPY(SortFilterSelectModel)

public:
    enum Roles {
        // The source answers it for a node that asks to be shown expanded, but gives it no name.
        WantsToBeExpandedRole = Qt::UserRole + 256,
        SelectedRole = 0x2F3D61A4,
        CurrentRole,
    };

    explicit SortFilterSelectModel(QObject* parent = nullptr);
    ~SortFilterSelectModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // What a row holds for a role given by name, read now rather than as a view caches it.
    Q_INVOKABLE QVariant roleData(const QModelIndex& index, const QByteArray& roleName) const;

    QModelIndexList selectedSourceRows() const;
    QModelIndex currentIndex() const;
    QAbstractItemModel* visibleRows() const;

    // Makes index the only selected row and the current one.
    Q_INVOKABLE void leftClickSelection(const QModelIndex& index);
    // Adds index to the selection or takes it out, and makes it current.
    Q_INVOKABLE void ctrlSelection(const QModelIndex& index);
    Q_INVOKABLE void clearSelection();
    Q_INVOKABLE QModelIndexList selectedRows() const;

    // A node expanded below a collapsed one shows its children once its ancestors are expanded.
    Q_INVOKABLE void expand(const QModelIndex& index);
    Q_INVOKABLE void collapse(const QModelIndex& index);
    Q_INVOKABLE bool isExpanded(const QModelIndex& index) const;

Q_SIGNALS:
    void selectedSourceRowsChanged();
    void currentIndexChanged(const QModelIndex& current, const QModelIndex& previous);

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr::components
