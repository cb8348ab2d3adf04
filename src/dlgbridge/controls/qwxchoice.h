#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <wx/arrstr.h>
#include <wx/string.h>

#include <memory>

namespace dbr {

class ChoiceListModel;
class qwxChoicePrivate;
class qwxClientData;

// A drop-down list whose rows the wrapper owns, each with optional client
// data; the selection lives in the QML item.
class DLGBRIDGE_EXPORT qwxChoice : public qwxControl
{
public:
    qwxChoice(const OdString& name, qwxWindow& parent);
    ~qwxChoice() override;

    DBR_WRAPPER_TYPE(qwxChoice)

    virtual void Select(int index);
    virtual int GetSelection() const;
    virtual wxString GetStringSelection() const;
    virtual void SetSelection(int index);
    // Replaces the row's text and drops its client data.
    virtual void SetString(int index, const wxString& text);
    // Case-sensitive; -1 when no row has the text.
    virtual int FindString(const wxString& text) const;
    virtual void Clear();
    virtual void Append(const wxArrayString& texts);
    virtual void Append(const wxString& text);
    virtual void AppendString(const wxString& text);
    virtual void Insert(int index, const wxArrayString& texts);
    virtual void Insert(int index, const wxString& text);
    virtual int GetCount() const;
    virtual void Delete(int index);
    virtual void InsertString(int index, const wxString& text);

    wxString GetValue() const;
    wxArrayString GetStrings() const;
    void Set(const wxArrayString& texts);
    // The row takes the client data; a row that can't be inserted deletes it.
    void Append(const wxString& text, qwxClientData* clientData);
    void Insert(const wxString& text, int index, qwxClientData* clientData);
    // Owned by the row; null outside the rows.
    qwxClientData* GetClientObject(int index) const;

    ChoiceListModel& model() const;

private:
    std::unique_ptr<qwxChoicePrivate> const d;
};

} // namespace dbr
