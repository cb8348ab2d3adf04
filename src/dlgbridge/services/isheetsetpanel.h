#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/services/dlgnewsheetresult.h>

#include <oda/OdString.h>

#include <vector>

namespace dbr {

// The application's sheet set panel. This library only finds it; the panel
// and its dialogs belong to the application.
class DLGBRIDGE_EXPORT ISheetSetPanel
{
public:
    virtual ~ISheetSetPanel();

    virtual bool openSheetSet(const OdString& fileName) = 0;
    virtual std::vector<dst::OdSmSheet*> selectedSheets() const = 0;
    virtual DlgNewSheetResult showNewSheetDialog() = 0;

    // The first object of the application's "SHEETSETS" panel that is one;
    // null without an application, a panel manager or such a panel.
    static ISheetSetPanel* getISheetSetPanelQt();

protected:
    ISheetSetPanel() = default;
    ISheetSetPanel(const ISheetSetPanel&) = default;
    ISheetSetPanel& operator=(const ISheetSetPanel&) = default;
};

} // namespace dbr
