#pragma once

#include <dlgbridge/dlgbridge_export.h>

class QObject;
class wxWindow;

namespace dbr {

// A panel of the application whose QML the application builds and owns.
class DLGBRIDGE_EXPORT IWxQtPanel
{
public:
    virtual ~IWxQtPanel();
    virtual QObject* root() = 0;
    virtual wxWindow* wx() = 0;
};

} // namespace dbr
