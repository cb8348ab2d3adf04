#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QColor>
#include <QString>

#include <memory>

namespace dbr {

// Base of what dialog code attaches to a tree row.
class DLGBRIDGE_EXPORT qwxTreeItemData
{
public:
    qwxTreeItemData() = default;
    qwxTreeItemData(const qwxTreeItemData&) = default;
    qwxTreeItemData& operator=(const qwxTreeItemData&) = default;
    virtual ~qwxTreeItemData();
};

// One row of a tree control, as the view's roles show it.
struct DLGBRIDGE_EXPORT TreeItemData
{
    TreeItemData();
    ~TreeItemData();
    TreeItemData(TreeItemData&& other) noexcept;
    // The target's client data goes with its old value.
    TreeItemData& operator=(TreeItemData&& other) noexcept;

    QString text;
    std::unique_ptr<qwxTreeItemData> data;
    int image = -1;
    // Kept for dialog code; nothing shows it.
    int selectedImage = -1;
    QString icon;
    QColor textColor;
    bool textBold = false;
    QString toolTip;
    bool dragValid = true;
    QString rightButtonIcon;
    bool editOnCreation = false;
};

} // namespace dbr
