#include "iguicontroller.h"

namespace dbr {

IGuiController::~IGuiController() = default;

} // namespace dbr
