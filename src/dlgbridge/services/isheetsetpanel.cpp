#include "isheetsetpanel.h"

#include <QObject>

#include <oa/OaApp.h>
#include <oa/PanelManager.h>

namespace dbr {

ISheetSetPanel::~ISheetSetPanel() = default;

ISheetSetPanel* ISheetSetPanel::getISheetSetPanelQt()
{
    const oa::OaApp* app = oa::OaApp::s_app;
    if (!app)
        return nullptr;
    const oa::PanelManager* manager = app->panelManager();
    const OdString panelName("SHEETSETS");
    if (!manager || !manager->hasPanel(panelName))
        return nullptr;
    const oa::PanelContainer* container = manager->panelContainer(panelName);
    if (!container)
        return nullptr;
    // The panel's QML host holds other objects beside the panel itself.
    for (QObject* object : container->objects()) {
        if (auto* panel = dynamic_cast<ISheetSetPanel*>(object))
            return panel;
    }
    return nullptr;
}

} // namespace dbr
