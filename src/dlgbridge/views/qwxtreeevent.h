#pragma once

#include <dlgbridge/core/qwxevent.h>
#include <dlgbridge/views/qwxtreeitemid.h>

#include <QString>

#include <memory>
#include <vector>

namespace dbr {

class qwxDragDropEventPrivate;
class qwxTreeCtrl;
class qwxTreeEventPrivate;

// Where a drop lands on its target row, as the view tells it.
enum EDropPositionType : int {
    DropAbove = 0,
    DropOnto = 1,
    DropBelow = 2,
};

// An event about a tree row: selection, activation, hover, label edits. Only
// its allowed state is read back after the handler returns.
class DLGBRIDGE_EXPORT qwxTreeEvent : public qwxEvent
{
public:
    qwxTreeEvent(const qwxTreeItemId& item, qwxTreeCtrl* tree);
    qwxTreeEvent(const qwxTreeItemId& item, const QString& label, qwxTreeCtrl* tree);
    qwxTreeEvent(const qwxTreeItemId& item, const qwxTreeItemId& oldItem, qwxTreeCtrl* tree);
    qwxTreeEvent(qwxTreeEvent&& other) noexcept;
    qwxTreeEvent& operator=(qwxTreeEvent&& other) noexcept;
    ~qwxTreeEvent() override;

    qwxTreeItemId GetItem() const;
    qwxTreeItemId GetOldItem() const;
    qwxWindow* GetEventObject() const override;
    void Veto();
    void Allow();
    bool IsAllowed() const;
    // The edited label when there is one, else the row's text.
    wxString GetLabel() const;
    bool IsEditCancelled() const;
    void SetToolTip(const wxString& toolTip);
    void SetDragValid(bool valid);

private:
    std::unique_ptr<qwxTreeEventPrivate> d;
};

// A drag of tree rows, when it begins and when it is dropped.
class DLGBRIDGE_EXPORT qwxDragDropEvent : public qwxEvent
{
public:
    qwxDragDropEvent(const std::vector<qwxTreeItemId>& sources, int keyModifiers, qwxTreeCtrl* tree);
    qwxDragDropEvent(const std::vector<qwxTreeItemId>& sources, const qwxTreeItemId& target, int keyModifiers,
                     qwxTreeCtrl* tree, EDropPositionType type);
    qwxDragDropEvent(qwxDragDropEvent&& other) noexcept;
    qwxDragDropEvent& operator=(qwxDragDropEvent&& other) noexcept;
    ~qwxDragDropEvent() override;

    std::vector<qwxTreeItemId> GetSources() const;
    qwxTreeItemId GetTarget() const;
    int GetKeyModifiers() const;
    EDropPositionType GetDropType() const;
    qwxWindow* GetEventObject() const override;
    // Marks every dragged row as draggable or not.
    void SetDragValid(bool valid);

private:
    std::unique_ptr<qwxDragDropEventPrivate> d;
};

} // namespace dbr
