#include "logging_p.h"

namespace dbr {

Q_LOGGING_CATEGORY(lcInitTypes, "arvela.qt.dlgconv.init.types")
Q_LOGGING_CATEGORY(lcInitSignals, "arvela.qt.dlgconv.init.signals")

} // namespace dbr
