#pragma once

#include <dlgbridge/core/qwxcontrol.h>
#include <dlgbridge/views/qwxtreeitemid.h>
#include <dlgbridge/views/treectrlmodelbase.h>

#include <QModelIndex>
#include <QObject>
#include <QString>

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>
#include <memory>
#include <vector>

class QAbstractProxyModel;

namespace dbr {

class TreeCtrlState;
class qwxImageList;
class qwxTreeEvent;

// The wx tree interface over the kit's "TreeViewAV". Three models stand in a
// row: the source model with the nodes, the control's own proxy (sorting,
// filtering) and the view's model ("SortFilterSelectModel"), each with its own
// indexes. Ids are nodes, so they survive whatever the proxies do; an index is
// made from an id only for the moment of a call, and never kept.
class DLGBRIDGE_EXPORT qwxTreeCtrl : public qwxControl
{
public:
    // Whether a new row asks the view to show it expanded.
    enum WantsToBeExpanded {
        ExpandWhenShown = 0,
        CollapsedWhenShown = 1,
    };

    // A null model makes the control its own.
    qwxTreeCtrl(const OdString& name, qwxWindow& parent, TreeCtrlModelBase* model = nullptr);
    // The proxy gets the model as its source and no other setting.
    qwxTreeCtrl(const OdString& name, qwxWindow& parent, std::unique_ptr<QAbstractProxyModel> proxy,
                TreeCtrlModelBase* model);
    ~qwxTreeCtrl() override;

    DBR_WRAPPER_TYPE(qwxTreeCtrl)
    // Gives the view's model the control's proxy as its source.
    void resyncToUI() override;

    void setProxyModel(std::unique_ptr<QAbstractProxyModel> proxy);
    void setIsSorted();
    TreeCtrlModelBase* GetModel() const;
    void setBeginLabelEditCallback(std::function<void(qwxTreeEvent&)> callback);

    // Items. The root always exists and is never shown.
    qwxTreeItemId AddRoot(const wxString& text, int image = -1);
    qwxTreeItemId GetRootItem() const;
    // A negative position appends; takes ownership of data, also when the row is refused.
    qwxTreeItemId InsertItem(const qwxTreeItemId& parent, int position, const wxString& text, int image = -1,
                             int selectedImage = -1, qwxTreeItemData* data = nullptr, const wxString& icon = {},
                             WantsToBeExpanded expand = CollapsedWhenShown);
    qwxTreeItemId AppendItem(const qwxTreeItemId& parent, const wxString& text, int image = -1, int selectedImage = -1,
                             qwxTreeItemData* data = nullptr, const wxString& icon = {},
                             WantsToBeExpanded expand = CollapsedWhenShown);
    qwxTreeItemId MoveItem(const qwxTreeItemId& item, const qwxTreeItemId& newParent);
    void Delete(const qwxTreeItemId& item);
    void DeleteChildren(const qwxTreeItemId& item);
    void DeleteAllItems();
    // The top-level rows the proxy lets through.
    int GetCount() const;

    // Navigation follows the proxy: its order, and only the rows it shows.
    qwxTreeItemId GetFirstChild(const qwxTreeItemId& item, qwxTreeItemIdValue& cookie) const;
    qwxTreeItemId GetNextChild(const qwxTreeItemId& item, qwxTreeItemIdValue& cookie) const;
    bool HasChildren(const qwxTreeItemId& item) const;
    bool ItemHasChildren(const qwxTreeItemId& item) const;
    // Null for a top-level row.
    qwxTreeItemId GetItemParent(const qwxTreeItemId& item) const;
    qwxTreeItemId GetNextSibling(const qwxTreeItemId& item) const;
    qwxTreeItemId GetPrevSibling(const qwxTreeItemId& item) const;
    // The row among all children, shown or not; -1 for a null id and the root.
    int GetChildIndexInParent(const qwxTreeItemId& item) const;

    // Attributes: setters report a change to the view only when there is one.
    wxString GetItemText(const qwxTreeItemId& item) const;
    void SetItemText(const qwxTreeItemId& item, const wxString& text);
    void SetItemTextColour(const qwxTreeItemId& item, const wxColour& colour);
    void SetItemBold(const qwxTreeItemId& item, bool bold);
    int GetItemImage(const qwxTreeItemId& item) const;
    void SetItemImage(const qwxTreeItemId& item, int image);
    QString GetItemIcon(const qwxTreeItemId& item) const;
    void SetItemIcon(const qwxTreeItemId& item, const QString& icon);
    void SetToolTip(const qwxTreeItemId& item, const wxString& toolTip);
    void SetDragValid(const qwxTreeItemId& item, bool valid);
    QString GetItemRightButtonIcon(const qwxTreeItemId& item) const;
    void SetItemRightButtonIcon(const qwxTreeItemId& item, const QString& icon);
    void SetEditOnCreation(const qwxTreeItemId& item, bool edit);
    // Stays the tree's.
    qwxTreeItemData* GetItemData(const qwxTreeItemId& item) const;

    // Takes ownership.
    void AssignImageList(qwxImageList* imageList);
    std::shared_ptr<qwxImageList> GetImageList() const;

    // The view.
    void Expand(const qwxTreeItemId& item);
    void Collapse(const qwxTreeItemId& item);
    void Toggle(const qwxTreeItemId& item);
    void EditLabel(const qwxTreeItemId& item);
    bool IsExpanded(const qwxTreeItemId& item) const;
    void ExpandAll(const qwxTreeItemId& item);
    // Children close before their parents.
    void CollapseAll(const qwxTreeItemId& item);
    void SelectItem(const qwxTreeItemId& item, bool expandParents = false);
    void clearSelections();
    int GetSelections(std::vector<qwxTreeItemId>& items) const;
    bool IsSelected(const qwxTreeItemId& item) const;
    // The selected row when it is the only one.
    qwxTreeItemId GetFocusedItem() const;
    void EnsureVisible(const qwxTreeItemId& item);
    qwxTreeItemId HitTest(const wxPoint& point, int& flags) const;

    // Index conversions, for the moment of a call.
    QModelIndex wxToQt(const qwxTreeItemId& item) const;
    qwxTreeItemId getWxIndex(const QModelIndex& proxyIndex) const;
    qwxTreeItemId getWxIndexFromSortfilterIndex(const QModelIndex& qmlIndex) const;

protected:
    // Calls function on item and on every row below it that has children, through the proxy.
    void traverseTree(const std::function<void(const qwxTreeItemId&)>& function, const qwxTreeItemId& item);

private:
    QModelIndex wxToQt(const qwxTreeItemId& item, const TreeCtrlModelBase& model) const;
    QModelIndex wxToQt(const qwxTreeItemId& item, const QAbstractProxyModel& proxy, TreeCtrlModelBase& model) const;
    // The row's index in the view's model; invalid without one.
    QModelIndex qmlIndex(const qwxTreeItemId& item, QObject* qmlModel) const;
    QObject* qmlModel() const;
    void setQmlSourceModel(QObject* proxy);
    // Calls a QML method of the item with the row's QML index, then extra if given.
    void invokeOnItem(const char* method, const qwxTreeItemId& item,
                      QGenericReturnArgument result = QGenericReturnArgument(),
                      QGenericArgument extra = QGenericArgument()) const;
    qwxTreeItemId addItem(const qwxTreeItemId& parent, int position, const wxString& text, int image, int selectedImage,
                          qwxTreeItemData* data, const wxString& icon, WantsToBeExpanded expand);
    template<typename Field>
    void setField(const qwxTreeItemId& item, Field TreeItemData::*member, Field value, int role);
    template<typename Field>
    Field field(const qwxTreeItemId& item, Field TreeItemData::*member, Field fallback) const;

    std::unique_ptr<TreeCtrlState> const d;
};

// Selects the row found by a path of labels separated by "|", each found below
// the one before, ignoring case; false when a label is not found.
DLGBRIDGE_EXPORT bool selectInTree(qwxTreeCtrl* tree, const wxString& path);

} // namespace dbr
