#pragma once

#include "qwxevent.h"

#include <QString>

#include <oda/OdString.h>

#include <memory>

class QObject;

namespace dbr {

class qwxWindow;

// Core knows wrappers only as qwxWindow. The room of the concrete control
// classes, above core, defines what is declared here. Not installed.

// Makes the wrapper of an item; the item is there for types whose wrapper
// class depends on a property of it.
using StandardWrapperFactory = std::unique_ptr<qwxWindow> (*)(const QObject& item, const OdString& name,
                                                              qwxWindow& host);

// The factory of the standard wrapper for a QML type; null for a type the standard table doesn't know.
StandardWrapperFactory standardWrapperFactory(const QString& type);

// Command events that carry the value of their source, read when the signal
// arrives; a source of another kind gives an event without a value.
namespace valueevents {

qwxCommandEvent checkBoxState(qwxWindow* window);
// The text of a text, search or combo control; the value of a spin control.
qwxCommandEvent textValue(qwxWindow* window);
// The selection of a choice, with the client data of the selected entry.
qwxCommandEvent choiceSelection(qwxWindow* window);

} // namespace valueevents
} // namespace dbr
