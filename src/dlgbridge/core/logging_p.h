#pragma once

#include <QLoggingCategory>

namespace dbr {

Q_DECLARE_LOGGING_CATEGORY(lcInitTypes)
Q_DECLARE_LOGGING_CATEGORY(lcInitSignals)

} // namespace dbr
