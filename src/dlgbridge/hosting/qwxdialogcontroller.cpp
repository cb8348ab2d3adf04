#include "qwxdialogcontroller.h"

#include "qwxdialog.h"

namespace dbr {

QwxDialogController::QwxDialogController(qwxDialog& dialog)
    : m_dialog(dialog)
{}

QwxDialogController::~QwxDialogController() = default;

void QwxDialogController::afterReset()
{
    m_dialog.reloadContent();
}

qwxDialog& QwxDialogController::dialog() const
{
    return m_dialog;
}

bool QwxDialogController::beforeOk()
{
    // Through the window part: the dialog's own list runs every control's validator.
    static_cast<qwxWindow&>(m_dialog).TransferDataFromWindow();
    return m_dialog.beforeOk();
}

bool QwxDialogController::beforeCancel()
{
    return m_dialog.beforeCancel();
}

} // namespace dbr
