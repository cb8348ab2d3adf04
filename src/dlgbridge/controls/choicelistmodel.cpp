#include "choicelistmodel.h"

namespace dbr {

ChoiceListModel::~ChoiceListModel() = default;

const ChoiceData* ChoiceListModel::row(int index) const
{
    return index >= 0 && index < rowCount() ? &rows()[size_t(index)] : nullptr;
}

void ChoiceListModel::setText(int index, const QString& text)
{
    if (!row(index))
        return;
    rows()[size_t(index)] = ChoiceData{text, nullptr};
    const QModelIndex changed = this->index(index);
    Q_EMIT dataChanged(changed, changed, {Qt::DisplayRole});
}

void ChoiceListModel::insert(int position, ChoiceData&& row)
{
    if (position < 0 || position > rowCount())
        return;
    beginInsertRows(QModelIndex(), position, position);
    rows().insert(rows().begin() + position, std::move(row));
    endInsertRows();
}

void ChoiceListModel::insert(int position, std::vector<ChoiceData>&& newRows)
{
    // Out of range the rows are dropped, as a single row would be.
    if (newRows.empty() || position < 0 || position > rowCount())
        return;
    beginInsertRows(QModelIndex(), position, position + int(newRows.size()) - 1);
    rows().insert(rows().begin() + position, std::make_move_iterator(newRows.begin()),
                  std::make_move_iterator(newRows.end()));
    endInsertRows();
}

void ChoiceListModel::remove(int index)
{
    if (!row(index))
        return;
    beginRemoveRows(QModelIndex(), index, index);
    rows().erase(rows().begin() + index);
    endRemoveRows();
}

} // namespace dbr
