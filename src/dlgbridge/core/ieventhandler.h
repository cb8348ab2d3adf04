#pragma once

#include <dlgbridge/dlgbridge_export.h>

namespace dbr {

// A wx-style event handler. Over QML no handler is ever pushed onto a window;
// the interface exists so that dialog code handing one over still compiles.
class DLGBRIDGE_EXPORT IEventHandler
{
public:
    virtual ~IEventHandler() = default;
};

} // namespace dbr
