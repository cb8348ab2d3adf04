#include "CaApp.h"

#include <oda/OdApDocument.h>

namespace ca {

OdApDocManager* CaApp::getOdapDocManager()
{
    const auto* application = dynamic_cast<const CaApp*>(oa::OaApp::s_app);
    return application ? application->docManager() : nullptr;
}

OdDbDatabase* curDb()
{
    const OdApDocManager* manager = CaApp::getOdapDocManager();
    const OdApDocument* document = manager ? manager->curDocument() : nullptr;
    return document ? document->database() : nullptr;
}

} // namespace ca
