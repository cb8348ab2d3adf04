#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <QString>

#include <wx/arrstr.h>
#include <wx/colour.h>
#include <wx/string.h>

#include <functional>
#include <memory>
#include <vector>

class QAbstractProxyModel;

namespace qut {
struct ColumnData;
}

namespace dbr {

class qwxClientData;
class qwxImageList;
class qwxListEvent;
class qwxListCtrlPrivate;

// The wx list interface, list box and report list alike, over the kit's
// "SingleSelListView", "WxConvTableView" or a plain TableView. The rows live
// in the control's own model, which the item shows; only the current row, the
// selected rows of a table, scrolling and filtering are asked of the item.
//
// With more than one column the control is a table: the selection is then the
// item's "selectedSourceRows" instead of its "currentIndex". Which one holds is
// decided anew on every call, so declaring a column switches every operation.
class DLGBRIDGE_EXPORT qwxListCtrl : public qwxControl
{
public:
    // The event id of a right click, for Bind.
    static constexpr int RightClickEvent = 7;
    // GetNextItem's only walk: every row, selected ones.
    static constexpr int NextAll = 14;
    static constexpr int StateSelected = 15;
    // The selected bit of SetItemState's state and mask.
    static constexpr long SelectedStateBit = 4;

    qwxListCtrl(const OdString& name, qwxWindow& parent);
    ~qwxListCtrl() override;

    DBR_WRAPPER_TYPE(qwxListCtrl)

    void Bind(int id, std::function<void(qwxListEvent&)> handler);
    // The proxy gets the control's model as its source and is shown as the item's "sortFilterModel".
    void setProxyModel(std::unique_ptr<QAbstractProxyModel> proxy);

    // Rows.
    int GetCount() const;
    bool IsEmpty() const;
    // The first cell's text; empty outside the rows.
    wxString GetItemText(int row) const;
    wxString GetItemText(int row, int column) const;
    wxString GetString(int row) const;
    int FindString(const wxString& text, bool caseSensitive = false) const;
    // Case-blind; partial matches a row that begins with text. -1 when nothing matches.
    int FindItem(long start, const wxString& text, bool partial = false) const;
    int Append(const wxString& text);
    // data stays the caller's.
    int Append(const wxString& text, void* data);
    bool Insert(int row, const wxString& text, void* data);
    // The row takes data, also when it can't be added.
    void Append(const wxString& text, qwxClientData* data);
    void Append(const wxArrayString& texts);
    // -1 when the two counts differ, else 0.
    int Append(const wxArrayString& texts, const wxArrayString& icons);
    void insertItem(int row, const wxString& text);
    // The row, or -1 when it can't be inserted there.
    long InsertItem(long row, const wxString& text, int imageIndex = -1, const wxString& icon = {});
    // An image index below 0 keeps the cell's image.
    void SetItem(long row, int column, const wxString& text, int imageIndex = -1, const wxString& icon = {});
    void SetItemData(long row, int column, std::unique_ptr<qwxClientData> data);
    // Gives the cell's client data to the caller; null for a cell that has none or doesn't exist.
    std::unique_ptr<qwxClientData> ExtractItemData(long row, int column);
    void SetItemTextColour(long row, const wxColour& colour);
    wxColour GetItemTextColour(int row) const;
    void SetItemColumnImage(long row, int column, int imageIndex);
    void SetItemColumnIcon(long row, int column, const wxString& icon);
    bool DeleteItem(int row);
    void DeleteAllItems();
    // Like DeleteAllItems, but clears the item's selection first.
    void Clear();
    void reset(const wxArrayString& texts);
    void moveRow(int from, int to);

    // Client data stays the row's.
    qwxClientData* GetClientObject(int row) const;
    qwxClientData* GetClientObject(int row, int column) const;
    // The pointer given to Append or Insert; null for any other client data.
    void* GetClientData(int row) const;

    // Check marks and row state.
    bool IsChecked(int row) const;
    // A disabled row keeps its mark.
    void Check(int row, bool checked = true);
    void setChecked(int row, bool checked);
    bool isSelected(int row) const;
    void setSelected(int row, bool selected);
    bool isEnabled(int row) const;
    void setEnabled(int row, bool enabled);

    // Selection. In a table a row given here is a row of the item's own
    // proxy, while the rows read back are rows of the control's model.
    int GetSelection() const;
    void SetSelection(int row);
    void SetSelection(const wxString& text);
    bool SetStringSelection(const wxString& text);
    wxString GetStringSelection() const;
    void Select(int row, bool on = true);
    void SetItemState(int row, long state, long stateMask);
    // Walks the rows whose model flag says selected: NextAll and StateSelected only.
    int GetNextItem(int item, int geometry = NextAll, int state = StateSelected) const;
    std::vector<int> getSelectedTableSourceIndices() const;
    void setSelectedTableSourceIndices(const std::vector<int>& rows);
    int GetSelectedItemCount() const;
    std::vector<int> GetSelections() const;

    // Columns, images, view.
    void InsertColumn(int position, const wxString& heading, int width = -1);
    void AppendColumn(const wxString& heading, int width = -1);
    void AppendColumn(qut::ColumnData column);
    void SetImageList(std::shared_ptr<qwxImageList> list, int which);
    void SetImageList(const wxArrayString& names);
    void EnsureVisible(int row);
    // Filters the item's rows by their text; the text is a case-blind pattern.
    void setSearchString(const wxString& text);

private:
    std::unique_ptr<qwxListCtrlPrivate> const d;
};

} // namespace dbr
