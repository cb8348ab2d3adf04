#include "columns.h"

namespace qut {

QVariant headerData(const Columns& columns, int section, Qt::Orientation orientation, int role)
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (section < 0 || section >= int(columns.columns.size()))
        return QVariant();
    const ColumnData& column = columns.columns[std::size_t(section)];
    switch (role) {
    case Qt::DisplayRole: return column.title;
    case Qt::ToolTipRole: return column.secondTitle;
    case Qt::TextAlignmentRole: return column.alignment;
    }
    return QVariant();
}

} // namespace qut
