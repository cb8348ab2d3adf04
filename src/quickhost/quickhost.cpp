#include "quickhost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <qut/qmlurl.h>

#include <dlfcn.h>

namespace dbr::quickhost {

namespace {

// Where the component kit was installed, found from where this library is now,
// so that an installed tree needs no import path from its user, wherever it
// went. Empty where there is no kit beside it, as in the build tree.
QString installedQmlImportDir()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void*>(&installedQmlImportDir), &info) == 0 || !info.dli_fname)
        return QString();
    const QDir libraryDir = QFileInfo(QFile::decodeName(info.dli_fname)).absoluteDir();
    const QString dir = QDir::cleanPath(libraryDir.filePath(QStringLiteral(DLGBRIDGE_QML_DIR_FROM_LIBDIR)));
    return QFileInfo::exists(dir) ? dir : QString();
}

} // namespace

QuickHost::QuickHost(const QStringList& importPaths)
    : m_guiController(m_engine)
    , m_dialogFactory(m_engine)
    , m_app(&m_guiController, &m_dialogFactory)
{
    // Added first, so that the caller's paths take precedence.
    const QString installed = installedQmlImportDir();
    if (!installed.isEmpty())
        m_engine.addImportPath(installed);
    for (const QString& path : importPaths)
        m_engine.addImportPath(path);
    // Property items address their editors by file, in the kit this engine imports.
    for (const QString& path : m_engine.importPathList())
        qut::addQmlImportDirectory(path);
    m_documents.createDocument("Drawing1", OdDbDatabase::createObject());
    m_app.setDocManager(&m_documents);
    oa::OaApp::s_app = &m_app;
}

QuickHost::~QuickHost() = default;

} // namespace dbr::quickhost
