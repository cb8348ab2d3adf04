#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QModelIndex>

namespace dbr {

// A tree row as dialog code holds it: the address of its node, which stays the
// same however the view sorts, filters or moves it. Null names no row.
class DLGBRIDGE_EXPORT qwxTreeItemId
{
public:
    qwxTreeItemId() = default;
    explicit qwxTreeItemId(void* item)
        : m_item(item)
    {}

    bool IsOk() const { return m_item != nullptr; }
    void* data() const { return m_item; }

    friend bool operator==(const qwxTreeItemId& a, const qwxTreeItemId& b) { return a.m_item == b.m_item; }
    friend bool operator!=(const qwxTreeItemId& a, const qwxTreeItemId& b) { return a.m_item != b.m_item; }

private:
    void* m_item = nullptr;
};

// Where a walk over a row's children stands, in the order the control's proxy shows them.
struct DLGBRIDGE_EXPORT qwxTreeItemIdValue
{
    int position = 0;
    QModelIndex parent;
};

} // namespace dbr
