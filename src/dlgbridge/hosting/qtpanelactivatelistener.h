#pragma once

#include <dlgbridge/dlgbridge_export.h>

namespace dbr {

// Hears a QML panel of the application being activated or deactivated.
// Register it with a PanelListenerHandler, and remove it before destroying it.
class DLGBRIDGE_EXPORT QtPanelActivateListener
{
public:
    virtual ~QtPanelActivateListener();
    virtual void activatePanel(bool active) = 0;
    // After the panel's loader has made or dropped its content.
    virtual void postLoaderActivation(bool active);

protected:
    QtPanelActivateListener() = default;
    QtPanelActivateListener(const QtPanelActivateListener&) = default;
    QtPanelActivateListener& operator=(const QtPanelActivateListener&) = default;
};

} // namespace dbr
