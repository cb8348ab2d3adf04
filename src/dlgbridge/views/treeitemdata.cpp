#include "treeitemdata.h"

#include <qut/qtconversions.h>
#include <wut/guicolor.h>

namespace dbr {

qwxTreeItemData::~qwxTreeItemData() = default;

TreeItemData::TreeItemData()
    : textColor(qut::toQt(wut::guiColor(wut::eGuiWindowText)))
{}

TreeItemData::~TreeItemData() = default;
TreeItemData::TreeItemData(TreeItemData&& other) noexcept = default;
TreeItemData& TreeItemData::operator=(TreeItemData&& other) noexcept = default;

} // namespace dbr
