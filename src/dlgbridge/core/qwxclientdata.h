#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <wx/string.h>

namespace dbr {

// What dialog code attaches to list rows, tree rows, choice entries and events.
class DLGBRIDGE_EXPORT qwxClientData
{
public:
    virtual ~qwxClientData();
};

// An untyped pointer of dialog code; not owned.
class DLGBRIDGE_EXPORT VoidClientData : public qwxClientData
{
public:
    explicit VoidClientData(void* data)
        : m_data(data)
    {}

    void* GetData() const { return m_data; }

private:
    void* m_data;
};

class DLGBRIDGE_EXPORT qwxStringClientData : public qwxClientData
{
public:
    explicit qwxStringClientData(const wxString& data)
        : m_data(data)
    {}

    wxString GetData() const { return m_data; }

private:
    wxString m_data;
};

} // namespace dbr
