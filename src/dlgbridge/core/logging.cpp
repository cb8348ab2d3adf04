#include "logging_p.h"

namespace dbr {

// Debug lines only when a rule enables them: a dialog open must not print a line per item to a user's console.
Q_LOGGING_CATEGORY(lcInitTypes, "arvela.qt.dlgconv.init.types", QtInfoMsg)
Q_LOGGING_CATEGORY(lcInitSignals, "arvela.qt.dlgconv.init.signals", QtInfoMsg)

} // namespace dbr
