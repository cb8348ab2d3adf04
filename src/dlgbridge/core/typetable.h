#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QString>

class QObject;

namespace dbr {

// The QML type an item declares: its "qmlType" string property, else the type
// name its class carries ("Name_QMLTYPE_n" or a plain "QQuick..." class).
DLGBRIDGE_EXPORT QString rawQmlType(QObject* object);

// rawQmlType, except that generic containers must say what they are: they are
// panes when named "PANEL_...", otherwise they have no usable type.
DLGBRIDGE_EXPORT QString qmlTypeOf(QObject* object);

} // namespace dbr
