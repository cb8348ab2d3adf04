#include "OaApp.h"

namespace oa {

OaApp* OaApp::s_app = nullptr;

OaApp::OaApp(dbr::IGuiController* guiController, dbr::IDialogFactory* dialogFactory)
    : m_guiController(guiController)
    , m_dialogFactory(dialogFactory)
{}

OaApp::~OaApp()
{
    // Nothing may reach an application that is gone.
    if (s_app == this)
        s_app = nullptr;
}

dbr::IGuiController* OaApp::guiController() const
{
    return m_guiController;
}

dbr::IDialogFactory* OaApp::dialogFactory() const
{
    return m_dialogFactory;
}

} // namespace oa
