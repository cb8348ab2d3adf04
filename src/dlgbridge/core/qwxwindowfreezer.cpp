#include "qwxwindowfreezer.h"

namespace dbr {

qWxWindowFreezer::qWxWindowFreezer(qwxWindow*) {}

} // namespace dbr
