#pragma once

namespace dbr {
class IDialogFactory;
class IGuiController;
} // namespace dbr

namespace oa {

class PanelManager;

// Stand-in for the application object: the one global through which the
// library reaches the services the application implements. The application
// sets s_app before it constructs its first dialog.
class OaApp
{
public:
    static OaApp* s_app;

    explicit OaApp(dbr::IGuiController* guiController = nullptr, dbr::IDialogFactory* dialogFactory = nullptr);
    virtual ~OaApp();
    OaApp(const OaApp&) = delete;
    OaApp& operator=(const OaApp&) = delete;

    virtual dbr::IGuiController* guiController() const;
    virtual dbr::IDialogFactory* dialogFactory() const;

    // Not owned; null when the application shows no panels.
    PanelManager* panelManager() const { return m_panelManager; }
    void setPanelManager(PanelManager* manager) { m_panelManager = manager; }

private:
    dbr::IGuiController* m_guiController;
    dbr::IDialogFactory* m_dialogFactory;
    PanelManager* m_panelManager = nullptr;
};

} // namespace oa
