#include "basedialogcontroller.h"

namespace dbr {

namespace {
constexpr int wxIdOk = 5100;
constexpr int wxIdCancel = 5101;
} // namespace

BaseDialogController::BaseDialogController() = default;
BaseDialogController::~BaseDialogController() = default;

bool BaseDialogController::beforeEndNonModal(int returnCode)
{
    return beforeEndModal(returnCode);
}

void BaseDialogController::afterReset() {}

bool BaseDialogController::beforeEndModal(int returnCode)
{
    switch (returnCode) {
    case wxIdOk: return beforeOk();
    case wxIdCancel: return beforeCancel();
    }
    return true;
}

void BaseDialogController::setParentDialog(wxDialog* dialog)
{
    m_parentDialog = dialog;
}

wxDialog* BaseDialogController::parentDialog()
{
    return m_parentDialog;
}

bool BaseDialogController::beforeOk()
{
    return true;
}

bool BaseDialogController::beforeCancel()
{
    return true;
}

} // namespace dbr
