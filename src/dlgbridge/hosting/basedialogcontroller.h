#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QObject>

class wxDialog;

namespace dbr {

// The object the application's dialog asks before it ends: OK and Cancel turn
// into the hooks beforeOk and beforeCancel, any other code ends at once.
class DLGBRIDGE_EXPORT BaseDialogController : public QObject
{
    Q_OBJECT

public:
    BaseDialogController();
    ~BaseDialogController() override;

    virtual bool beforeEndNonModal(int returnCode);
    // Called by the host after it replaced the dialog's QML.
    virtual void afterReset();

    bool beforeEndModal(int returnCode);

    void setParentDialog(wxDialog* dialog);
    wxDialog* parentDialog();

Q_SIGNALS:
    // Asks the QML side to close the dialog.
    void closeDialog();

private:
    virtual bool beforeOk();
    virtual bool beforeCancel();

    wxDialog* m_parentDialog = nullptr;
};

} // namespace dbr
