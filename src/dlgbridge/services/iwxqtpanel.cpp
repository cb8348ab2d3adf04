#include "iwxqtpanel.h"

namespace dbr {

IWxQtPanel::~IWxQtPanel() = default;

} // namespace dbr
