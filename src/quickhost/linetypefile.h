#pragma once

#include <quickhost/quickhost_export.h>

#include <QList>
#include <QString>

#include <oda/OdArray.h>

class QIODevice;

namespace dbr::quickhost {

// One line type of a line type definition file.
struct LineTypeDefinition
{
    QString name;
    QString description;
    // Dashes positive, gaps negative, dots zero, in drawing units.
    OdArray<double> dashes;
};

// The definitions of a line type definition file: "*NAME,description" then
// "A,dash,gap,...". Comments (";;") and blank lines are skipped, and so is a
// definition whose pattern doesn't read as numbers.
DLGBRIDGE_QUICKHOST_EXPORT QList<LineTypeDefinition> readLineTypeDefinitions(QIODevice& file);

// The definitions of the file quickhost ships.
DLGBRIDGE_QUICKHOST_EXPORT const QList<LineTypeDefinition>& shippedLineTypes();

} // namespace dbr::quickhost
