#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>
#include <vector>

// Stand-in for the application's column records of list and table models.
namespace qut {

// One column of a table. Only the id and the titles mean something to the
// library; the other fields are carried for the real record's sake.
struct ColumnData
{
    int reserved = -1;
    int id = -1;
    QString title;
    QString secondTitle;
    QString extra1;
    QString extra2;
    std::int64_t extent = 120;
    int width = 0;
    int kind = 4;
    bool visible = true;
    int order = 0;
    QString key;
    int alignment = 132;
    bool frozen = false;
};

struct Columns
{
    int reserved = -1;
    std::vector<ColumnData> columns;
};

// What a view's header shows for a section: the column's title, and its
// alignment; rows are numbered from 1. Nothing for a section out of range.
QVariant headerData(const Columns& columns, int section, Qt::Orientation orientation, int role);

} // namespace qut
