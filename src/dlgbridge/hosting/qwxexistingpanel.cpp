#include "qwxexistingpanel.h"

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/services/iwxqtpanel.h>

namespace dbr {

class qwxExistingPanelPrivate
{
public:
    explicit qwxExistingPanelPrivate(qwxWindow& owner)
        : children(owner)
    {}

    CustomTypes customTypes;
    QmlChildList children;
    IWxQtPanel* panel = nullptr;
};

qwxExistingPanel::qwxExistingPanel()
    : d(std::make_unique<qwxExistingPanelPrivate>(*this))
{}

qwxExistingPanel::~qwxExistingPanel() = default;

QObject* qwxExistingPanel::root() const
{
    return d->panel ? d->panel->root() : nullptr;
}

wxWindow* qwxExistingPanel::wx()
{
    return d->panel ? d->panel->wx() : nullptr;
}

const QmlChildList* qwxExistingPanel::qmlChildren(UseParentListIfNone) const
{
    return &d->children;
}

QmlChildList* qwxExistingPanel::qmlChildren(UseParentListIfNone)
{
    return &d->children;
}

CustomTypes qwxExistingPanel::registerCustomTypes()
{
    return d->customTypes;
}

void qwxExistingPanel::setPanel(IWxQtPanel* panel)
{
    d->panel = panel;
}

void qwxExistingPanel::setCustomTypes(const CustomTypes& types)
{
    if (&types != &d->customTypes)
        d->customTypes = types;
}

void qwxExistingPanel::loadContent()
{
    if (!root()) {
        qCritical("Unable to set up panel: no root object found");
        return;
    }
    doLoadContent(d->children);
}

void qwxExistingPanel::onQmlReloaded()
{
    d->children.resetCallbacks();
    resyncToUI(d->children);
    resetEventTablesLoaded(d->children);
    loadEventTables(d->children);
}

} // namespace dbr
