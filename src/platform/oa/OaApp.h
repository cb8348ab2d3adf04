#pragma once

// Stand-in for the application object. s_app is the one instance the library
// reaches for; the application (or a test) sets it and keeps the object alive.
namespace oa {

class PanelManager;

class OaApp
{
public:
    OaApp() = default;
    virtual ~OaApp() = default;
    OaApp(const OaApp&) = delete;
    OaApp& operator=(const OaApp&) = delete;

    static OaApp* s_app;

    // Not owned; null when the application shows no panels.
    PanelManager* panelManager() const { return m_panelManager; }
    void setPanelManager(PanelManager* manager) { m_panelManager = manager; }

private:
    PanelManager* m_panelManager = nullptr;
};

} // namespace oa
