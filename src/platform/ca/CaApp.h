#pragma once

#include <oa/OaApp.h>

class OdApDocManager;
class OdDbDatabase;

namespace ca {

// Stand-in for the drawing application's object: the application object with
// a command line and documents. Through it the library reaches the same
// services as through oa::OaApp.
class CaApp : public oa::OaApp
{
public:
    using oa::OaApp::OaApp;

    // The document manager of the application object, when that is a CaApp
    // and has one; null otherwise.
    static OdApDocManager* getOdapDocManager();

    // Not owned; it must outlive what registers with it.
    void setDocManager(OdApDocManager* manager) { m_docManager = manager; }
    OdApDocManager* docManager() const { return m_docManager; }

private:
    OdApDocManager* m_docManager = nullptr;
};

// The database of the current document; null without one.
OdDbDatabase* curDb();

} // namespace ca
