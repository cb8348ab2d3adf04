#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <oda/OdString.h>

class QObject;

namespace dbr {

// What a command's dialog code types at the command line. Each call is posted
// on the context and runs from its event loop after the caller has returned,
// so a handler may close the dialog it runs in; nothing is posted for a null
// context, and nothing runs if the context dies first.

// Enter.
DLGBRIDGE_EXPORT void acceptCommandLine(QObject* context);
// Escape.
DLGBRIDGE_EXPORT void rejectCommandLine(QObject* context);
// An option word, in its global form: "_" is put in front where missing. An
// empty option posts nothing.
DLGBRIDGE_EXPORT void invokeCommandLineOption(QObject* context, OdString option);

} // namespace dbr
