#include "commandcontextdialogsession.h"

#include "commandcontextdialogcontroller.h"

#include <dlgbridge/services/iguicontroller.h>

#include <QUrl>

#include <ca/CaApp.h>

namespace dbr {

namespace {

// The panel's options, as the application lays out a context dialog.
constexpr DialogOptions contextDialogOptions{1, 1, 0};

// Without the application's services there is no panel, and the command runs without one.
std::unique_ptr<IWxQtDialog> createContextDialog(ca::CaApp& app, const QUrl& url, BaseDialogController* controller)
{
    IGuiController* gui = app.guiController();
    return gui ? gui->createDialog(url, controller, NotResizable, contextDialogOptions, nullptr) : nullptr;
}

} // namespace

class CommandContextDialogSessionPrivate
{
public:
    std::unique_ptr<IWxQtDialog> dialog;
    ca::CaApp& app;
    std::shared_ptr<CommandContextDialogController> controller;
};

CommandContextDialogDisabler::CommandContextDialogDisabler(std::weak_ptr<CommandContextDialogController> controlled)
    : controller(std::move(controlled))
{}

CommandContextDialogDisabler::~CommandContextDialogDisabler()
{
    if (const auto alive = controller.lock())
        alive->setPanelEnabled(true);
}

std::shared_ptr<CommandContextDialogSession>
CommandContextDialogSession::create(ca::CaApp& app, const QUrl& url,
                                    std::shared_ptr<CommandContextDialogController> contents)
{
    // The constructor is private, so make_shared cannot reach it.
    std::shared_ptr<CommandContextDialogSession> session(new CommandContextDialogSession(app, url, contents));
    if (contents)
        contents->setSession(session);
    return session;
}

CommandContextDialogSession::CommandContextDialogSession(ca::CaApp& app, const QUrl& url,
                                                         std::shared_ptr<CommandContextDialogController> contents)
    : d(std::make_unique<CommandContextDialogSessionPrivate>(
          CommandContextDialogSessionPrivate{createContextDialog(app, url, contents.get()), app, contents}))
{
    if (!d->dialog)
        return;
    app.guiController()->attachContextDialog(d->dialog.get());
    d->dialog->Show();
}

CommandContextDialogSession::~CommandContextDialogSession()
{
    close();
}

std::shared_ptr<CommandContextDialogController> CommandContextDialogSession::getContentsController()
{
    return d->controller;
}

std::shared_ptr<CommandContextDialogDisabler> CommandContextDialogSession::disable()
{
    if (!d->controller)
        return nullptr;
    auto disabler = std::make_shared<CommandContextDialogDisabler>(d->controller);
    d->controller->setPanelEnabled(false);
    return disabler;
}

void CommandContextDialogSession::close()
{
    IGuiController* gui = d->app.guiController();
    if (d->dialog && gui)
        gui->detachContextDialog(d->dialog.get());
    d->dialog.reset();
    d->controller.reset();
}

} // namespace dbr
