#pragma once

namespace dbr {
class IDialogFactory;
class IGuiController;
} // namespace dbr

namespace oa {

// Stand-in for the application object: the one global through which the
// library reaches the services the application implements. The application
// sets s_app before it constructs its first dialog.
class OaApp
{
public:
    static OaApp* s_app;

    OaApp(dbr::IGuiController* guiController, dbr::IDialogFactory* dialogFactory);
    virtual ~OaApp();

    virtual dbr::IGuiController* guiController() const;
    virtual dbr::IDialogFactory* dialogFactory() const;

private:
    dbr::IGuiController* m_guiController;
    dbr::IDialogFactory* m_dialogFactory;
};

} // namespace oa
