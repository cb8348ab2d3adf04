#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <wx/gdicmn.h>

#include <cstddef>

namespace dbr {

class qwxObject;
class qwxSizerItem;
class qwxWindow;

// QML lays out its own items: sizer calls of dialog code log and do nothing.
class DLGBRIDGE_EXPORT qwxSizer
{
public:
    qwxSizerItem* Insert(size_t index, qwxWindow* window, int proportion = 0, int flag = 0, int border = 0,
                         qwxObject* userData = nullptr);
    qwxSizerItem* GetItem(size_t index);
    void SetSizeHints(qwxWindow* window);
    void Layout();
};

class DLGBRIDGE_EXPORT qwxSizerItem
{
public:
    wxSize GetSize() const;
    qwxSizer* GetSizer();
};

} // namespace dbr
