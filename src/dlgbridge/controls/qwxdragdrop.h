#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <wx/string.h>

namespace dbr {

class qwxWindow;

// Drag and drop belongs to QML; these keep wx-style dialog code compiling and
// running, and their calls only log.
class DLGBRIDGE_EXPORT qwxDataObject
{
public:
    virtual ~qwxDataObject();
};

class DLGBRIDGE_EXPORT qwxTextDataObject : public qwxDataObject
{
public:
    qwxTextDataObject() = default;
    explicit qwxTextDataObject(const wxString& text)
        : m_text(text)
    {}

private:
    wxString m_text;
};

class DLGBRIDGE_EXPORT qwxDropTarget
{
public:
    virtual ~qwxDropTarget();
    // Takes ownership of data and deletes it: nothing is ever dropped here.
    void SetDataObject(qwxDataObject* data);
};

class DLGBRIDGE_EXPORT qwxDropSource
{
public:
    qwxDropSource(const qwxDataObject& data, qwxWindow& window);
    int DoDragDrop(int flags);
};

} // namespace dbr
