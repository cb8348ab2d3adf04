#include "commandcontextdialogcontroller.h"

#include "commandline.h"

namespace dbr {

class CommandContextDialogControllerPrivate
{
public:
    bool panelEnabled = true;
    std::weak_ptr<CommandContextDialogSession> session;
};

CommandContextDialogController::CommandContextDialogController()
    : d(std::make_unique<CommandContextDialogControllerPrivate>())
{}

CommandContextDialogController::~CommandContextDialogController() = default;

bool CommandContextDialogController::getPanelEnabled() const
{
    return d->panelEnabled;
}

void CommandContextDialogController::setPanelEnabled(bool enabled)
{
    d->panelEnabled = enabled;
    Q_EMIT panelEnabledChanged();
}

void CommandContextDialogController::setSession(std::shared_ptr<CommandContextDialogSession> session)
{
    d->session = std::move(session);
}

void CommandContextDialogController::closeClick()
{
    rejectCommandLine(this);
}

} // namespace dbr
