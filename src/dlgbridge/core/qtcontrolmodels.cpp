#include "qtcontrolmodels.h"

#include <dlgbridge/cadmodels/colormodel.h>
#include <dlgbridge/cadmodels/linetypemodel.h>

namespace dbr {

QtControlModels::QtControlModels() = default;

QtControlModels::~QtControlModels() = default;

} // namespace dbr
