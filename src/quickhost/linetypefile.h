#pragma once

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
QList<LineTypeDefinition> readLineTypeDefinitions(QIODevice& file);

// The definitions of the file quickhost ships.
const QList<LineTypeDefinition>& shippedLineTypes();

} // namespace dbr::quickhost
