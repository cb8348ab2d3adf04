#include "guicontrolleradapter.h"

namespace dbr {

GuiControllerAdapter::~GuiControllerAdapter() = default;

} // namespace dbr
