#include "dialogfactoryadapter.h"

namespace dbr {

DialogFactoryAdapter::~DialogFactoryAdapter() = default;

} // namespace dbr
