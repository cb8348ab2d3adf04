#include "qtpanelactivatelistener.h"

namespace dbr {

QtPanelActivateListener::~QtPanelActivateListener() = default;

void QtPanelActivateListener::postLoaderActivation(bool)
{
}

} // namespace dbr
