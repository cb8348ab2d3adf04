#pragma once

#include "basedialogcontroller.h"

#include <memory>

namespace dbr {

class CommandContextDialogControllerPrivate;
class CommandContextDialogSession;

// What the QML of a command context dialog sees: whether the panel takes
// input now, and its close button. It agrees to every end request, like the
// base controller.
class DLGBRIDGE_EXPORT CommandContextDialogController : public BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(bool panelEnabled READ getPanelEnabled NOTIFY panelEnabledChanged)

public:
    CommandContextDialogController();
    ~CommandContextDialogController() override;

    bool getPanelEnabled() const;
    // Notifies even when the value stays, so a panel always shows the last word.
    void setPanelEnabled(bool enabled);
    // Kept weakly: the session owns the dialog, which uses this controller.
    void setSession(std::shared_ptr<CommandContextDialogSession> session);

public Q_SLOTS:
    // Closing the panel is Escape at the command line: the command decides
    // whether its dialog goes.
    void closeClick();

Q_SIGNALS:
    void panelEnabledChanged();

private:
    std::unique_ptr<CommandContextDialogControllerPrivate> const d;
};

} // namespace dbr
