#include "qmlurl.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>

namespace qut {

namespace {

QStringList& addedDirectories()
{
    static QStringList directories;
    return directories;
}

} // namespace

void addQmlImportDirectory(const QString& directory)
{
    const QString clean = QDir::cleanPath(directory);
    if (!addedDirectories().contains(clean))
        addedDirectories().append(clean);
}

QStringList qmlImportDirectories()
{
    QStringList directories = addedDirectories();
    const QString fromEnvironment = qEnvironmentVariable("QML2_IMPORT_PATH");
    for (const QString& directory : fromEnvironment.split(QDir::listSeparator(), Qt::SkipEmptyParts))
        directories.append(QDir::cleanPath(directory));
    directories.append(QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath));
    return directories;
}

QUrl getQUrl(const QString& path, const QString& module, const QString&)
{
    const QString relative = QString(module).replace(QLatin1Char('.'), QLatin1Char('/')) + QLatin1Char('/') + path;
    const QStringList directories = qmlImportDirectories();
    for (const QString& directory : directories) {
        const QString file = QDir(directory).filePath(relative);
        if (QFileInfo::exists(file))
            return QUrl::fromLocalFile(file);
    }
    return QUrl::fromLocalFile(QDir(directories.first()).filePath(relative));
}

} // namespace qut
