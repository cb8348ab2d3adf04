#pragma once

#include <QAbstractListModel>
#include <QString>

#include <utility>
#include <vector>

namespace qut {

// What a row shows in QML's "modelData"; rows of other types bring an overload
// of their own, found by argument-dependent lookup.
inline QVariant modelData(const QString& row)
{
    return row;
}

// Stand-in for the application's list model over a vector of rows, shown to
// QML under the one role "modelData".
template<typename Row>
class GenericListModel : public QAbstractListModel
{
public:
    static constexpr int ModelDataRole = Qt::UserRole + 1;

    explicit GenericListModel(std::vector<Row>&& rows = {})
        : m_rows(std::move(rows))
    {}

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
            return QVariant();
        if (role != Qt::DisplayRole && role != ModelDataRole)
            return QVariant();
        return modelData(m_rows[size_t(index.row())]);
    }

    QHash<int, QByteArray> roleNames() const override { return {{ModelDataRole, "modelData"}}; }

    // Returns the new row's number.
    int append(Row&& row)
    {
        const int position = rowCount();
        beginInsertRows(QModelIndex(), position, position);
        m_rows.push_back(std::move(row));
        endInsertRows();
        return position;
    }

    void append(std::vector<Row>&& rows)
    {
        if (rows.empty())
            return;
        const int first = rowCount();
        beginInsertRows(QModelIndex(), first, first + int(rows.size()) - 1);
        std::move(rows.begin(), rows.end(), std::back_inserter(m_rows));
        endInsertRows();
    }

    void clear() { reset({}); }

    void reset(std::vector<Row>&& rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

protected:
    std::vector<Row>& rows() { return m_rows; }
    const std::vector<Row>& rows() const { return m_rows; }

private:
    std::vector<Row> m_rows;
};

} // namespace qut
