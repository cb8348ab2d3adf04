#pragma once

#include <dlgbridge/dlgbridge_export.h>

namespace dbr {

class qwxWindow;

// wx code freezes a window around bulk updates; QML items batch their own
// repaints, so nothing is frozen here. Copies and assignments do nothing either.
class DLGBRIDGE_EXPORT qWxWindowFreezer
{
public:
    explicit qWxWindowFreezer(qwxWindow* window);
};

} // namespace dbr
