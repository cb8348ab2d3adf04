// Core declares the record of a host's models; the models are this room's, so
// it is made and destroyed here.
#include <dlgbridge/core/qtcontrolmodels.h>

#include "colormodel.h"
#include "linetypemodel.h"

namespace dbr {

QtControlModels::QtControlModels() = default;

QtControlModels::~QtControlModels() = default;

} // namespace dbr
