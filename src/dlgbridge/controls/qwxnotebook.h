#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <memory>

namespace dbr {

class qwxImageList;
class qwxNotebookPrivate;

// The page operations of a wx notebook over a tab bar: the QML item owns the
// pages, the wrapper reaches a single tab through the item's "itemAt".
class DLGBRIDGE_EXPORT qwxNotebook : public qwxControl
{
public:
    qwxNotebook(const OdString& name, qwxWindow& parent);
    ~qwxNotebook() override;

    DBR_WRAPPER_TYPE(qwxNotebook)

    int GetSelection() const;
    // Out of range goes to QML as it stands.
    void SetSelection(int page);
    // The tab can't be shown again through this interface.
    void HidePage(int page);
    void SetImageList(std::shared_ptr<qwxImageList> imageList);
    // Needs an image list set before.
    void SetPageImage(int page, int image);

private:
    std::unique_ptr<qwxNotebookPrivate> const d;
};

} // namespace dbr
