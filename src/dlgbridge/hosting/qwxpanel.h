#pragma once

#include <dlgbridge/core/qwxwindow.h>

#include <memory>

namespace dbr {

class qwxPanelPrivate;

// A container item inside the QML of its host. It has no list of its own: the
// controls in it are wrappers of the host's list.
class DLGBRIDGE_EXPORT qwxPanel : public qwxWindow
{
public:
    qwxPanel(const OdString& name, qwxWindow& parent);
    // Initialised later, usually through wut::loadPanel.
    explicit qwxPanel(qwxWindow& parent);
    ~qwxPanel() override;

    DBR_WRAPPER_TYPE(qwxPanel)
    QString wrappedObjectName() const override;
    QObject* root() const override;

    // Finds the panel's item below the parent's root; a second call keeps the first item.
    bool init(const QString& name);
    // Moves the panel's item into the item of newParent.
    void Reparent(qwxWindow& newParent);

private:
    std::unique_ptr<qwxPanelPrivate> const d;
};

namespace wut {

DLGBRIDGE_EXPORT bool loadPanel(qwxPanel* panel, const QString& name);

} // namespace wut

} // namespace dbr
