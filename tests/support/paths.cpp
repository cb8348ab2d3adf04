#include "paths.h"

#include <QDir>

namespace dbr::test {

QString qmlImportDir()
{
    return QStringLiteral(DLGBRIDGE_QML_IMPORT_DIR);
}

QUrl testDataUrl(const QString& fileName)
{
    return QUrl::fromLocalFile(QDir(QStringLiteral(DLGBRIDGE_TEST_DATA_DIR)).filePath(fileName));
}

} // namespace dbr::test
