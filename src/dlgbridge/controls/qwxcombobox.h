#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/arrstr.h>
#include <wx/string.h>

#include <memory>

namespace qut {
class StringListModel;
}

namespace dbr {

class qwxComboBoxPrivate;

// An editable drop-down list: plain strings, searched by the QML item itself.
class DLGBRIDGE_EXPORT qwxComboBox : public qwxControl
{
public:
    qwxComboBox(const OdString& name, qwxWindow& parent);
    ~qwxComboBox() override;

    DBR_WRAPPER_TYPE(qwxComboBox)

    // The edited text of an editable combo, else the current entry's.
    wxString GetValue() const;
    // Selects the entry with that text, or else edits it in.
    void SetValue(const wxString& value);
    // In an editable combo the selection follows the text.
    int GetSelection() const;
    void Select(int index);
    void SetSelection(int index);
    // Asks the item's "find"; -1 when nothing matches or the item can't be asked.
    int FindString(const wxString& text, bool caseSensitive = false) const;
    int Append(const wxString& text);
    int AppendString(const wxString& text);
    void Append(const wxSortedArrayString& texts);
    void Clear();
    void Set(const wxArrayString& texts);

    qut::StringListModel& model() const;

private:
    std::unique_ptr<qwxComboBoxPrivate> const d;
};

} // namespace dbr
