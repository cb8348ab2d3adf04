#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace qut {

// Stand-in for the application's way to address a file of a QML module: the
// file under the first QML import directory that holds it ("Arvela.Components"
// lives in <import dir>/Arvela/Components). The directories searched are those
// added here, then QML2_IMPORT_PATH, then Qt's own. The application resolves
// sourceDirectory against its source tree in developer builds; installed
// modules never need it, and neither does this stand-in. A file found nowhere
// gives the path under the first directory, so that a loader reports what was
// missing.
QUrl getQUrl(const QString& path, const QString& module, const QString& sourceDirectory);

// Not in the application: where a host keeps its modules, searched first.
void addQmlImportDirectory(const QString& directory);
QStringList qmlImportDirectories();

} // namespace qut
