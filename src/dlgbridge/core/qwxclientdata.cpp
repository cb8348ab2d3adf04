#include "qwxclientdata.h"

namespace dbr {

qwxClientData::~qwxClientData() = default;

} // namespace dbr
