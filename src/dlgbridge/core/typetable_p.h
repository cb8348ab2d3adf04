#pragma once

#include "qmlchildlist.h"

namespace dbr {

// Makes a wrapper for every named item of a known type under root, the host
// being the parent of each.
QmlChildList::ChildMap createWrappers(QObject* root, qwxWindow& host);

} // namespace dbr
