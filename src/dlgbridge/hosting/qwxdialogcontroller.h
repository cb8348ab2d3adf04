#pragma once

#include "basedialogcontroller.h"

namespace dbr {

class qwxDialog;

// The controller of a qwxDialog: on OK the controls' data is transferred out
// first, then the dialog's beforeOk may still veto.
class DLGBRIDGE_EXPORT QwxDialogController : public BaseDialogController
{
    Q_OBJECT

public:
    explicit QwxDialogController(qwxDialog& dialog);
    ~QwxDialogController() override;

    void afterReset() override;

protected:
    qwxDialog& dialog() const;

private:
    bool beforeOk() override;
    bool beforeCancel() override;

    qwxDialog& m_dialog;
};

} // namespace dbr
