#include "iwxqtdialog.h"

namespace dbr {

IWxQtDialog::~IWxQtDialog() = default;

} // namespace dbr
