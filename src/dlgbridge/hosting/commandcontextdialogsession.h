#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <memory>

class QUrl;

namespace ca {
class CaApp;
}

namespace dbr {

class CommandContextDialogController;
class CommandContextDialogSessionPrivate;

// Greys a command context dialog out for as long as it lives. Disablers do not
// count: the first to go enables the panel again, whatever others still live.
struct DLGBRIDGE_EXPORT CommandContextDialogDisabler
{
    explicit CommandContextDialogDisabler(std::weak_ptr<CommandContextDialogController> controller);
    ~CommandContextDialogDisabler();
    CommandContextDialogDisabler(const CommandContextDialogDisabler&) = delete;
    CommandContextDialogDisabler& operator=(const CommandContextDialogDisabler&) = delete;

    std::weak_ptr<CommandContextDialogController> controller;
};

// One command context dialog for the length of a command: shown beside the
// command line from the moment the session exists, until close() or the end
// of the session. It must not outlive the application.
class DLGBRIDGE_EXPORT CommandContextDialogSession
{
public:
    static std::shared_ptr<CommandContextDialogSession>
    create(ca::CaApp& app, const QUrl& url, std::shared_ptr<CommandContextDialogController> contents);
    ~CommandContextDialogSession();
    CommandContextDialogSession(const CommandContextDialogSession&) = delete;
    CommandContextDialogSession& operator=(const CommandContextDialogSession&) = delete;

    // Empty once the session is closed.
    std::shared_ptr<CommandContextDialogController> getContentsController();
    // Greys the panel out until the disabler goes; empty once the session is closed.
    std::shared_ptr<CommandContextDialogDisabler> disable();
    // Detaches and destroys the dialog; a second call does nothing.
    void close();

private:
    CommandContextDialogSession(ca::CaApp& app, const QUrl& url,
                                std::shared_ptr<CommandContextDialogController> contents);

    std::unique_ptr<CommandContextDialogSessionPrivate> const d;
};

} // namespace dbr
