#pragma once

#include <QHash>
#include <QSet>
#include <QString>

class QObject;

namespace dbr::itemsearch {

// The item of that object name: the root itself when it carries the name, else
// the first descendant in QObject::findChild's order; null without one. Logs nothing.
QObject* find(QObject& root, const QString& name);

// What find() answers for each name, in one walk of the tree; names without an item are left out.
QHash<QString, QObject*> findAll(QObject& root, QSet<QString> names);

} // namespace dbr::itemsearch
