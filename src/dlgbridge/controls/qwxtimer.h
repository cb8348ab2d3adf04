#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <memory>

namespace dbr {

class QmlChildList;
class qwxTimerPrivate;
class qwxWindow;

// A repeating timer whose ticks reach the handlers connected to timer events
// of its child list, told apart by id. It must not outlive the list.
class DLGBRIDGE_EXPORT qwxTimer
{
public:
    qwxTimer(qwxWindow* owner, int id);
    qwxTimer(QmlChildList* list, int id);
    ~qwxTimer();

    void Start(int milliseconds);
    void Stop();
    bool IsRunning() const;
    int GetId() const;

private:
    std::unique_ptr<qwxTimerPrivate> const d;
};

} // namespace dbr
