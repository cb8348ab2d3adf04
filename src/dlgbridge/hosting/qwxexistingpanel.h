#pragma once

#include <dlgbridge/core/qwxwindow.h>

#include <memory>

namespace dbr {

class IWxQtPanel;
class qwxExistingPanelPrivate;

// Binds wrappers to a panel whose QML the application has built and owns. It
// hosts its own list of wrappers and may bring wrapper types of its own.
class DLGBRIDGE_EXPORT qwxExistingPanel : public qwxWindow
{
public:
    qwxExistingPanel();
    ~qwxExistingPanel() override;

    DBR_WRAPPER_TYPE(qwxExistingPanel)
    QObject* root() const override;
    wxWindow* wx() override;
    const QmlChildList* qmlChildren(UseParentListIfNone mode) const override;
    QmlChildList* qmlChildren(UseParentListIfNone mode) override;
    CustomTypes registerCustomTypes() override;

    // The panel must outlive this object, or be unset first.
    void setPanel(IWxQtPanel* panel);
    void setCustomTypes(const CustomTypes& types);

    // Wraps the panel's QML; the application calls it once its QML is ready.
    void loadContent();
    // After the application replaced the panel's QML: the wrappers stay and
    // their handlers are bound anew.
    void onQmlReloaded();

private:
    std::unique_ptr<qwxExistingPanelPrivate> const d;
};

} // namespace dbr
