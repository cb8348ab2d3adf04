#pragma once

#include <QString>
#include <QUrl>

namespace dbr::test {

// Where the build puts the component kit's QML module.
QString qmlImportDir();
// A QML file of tests/data.
QUrl testDataUrl(const QString& fileName);

} // namespace dbr::test
