#include "quickhost.h"

namespace dbr::quickhost {

QuickHost::QuickHost(const QStringList& importPaths)
    : m_guiController(m_engine)
    , m_dialogFactory(m_engine)
    , m_app(&m_guiController, &m_dialogFactory)
{
    for (const QString& path : importPaths)
        m_engine.addImportPath(path);
    oa::OaApp::s_app = &m_app;
}

QuickHost::~QuickHost() = default;

} // namespace dbr::quickhost
