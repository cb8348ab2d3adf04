#pragma once

#include <QObject>

namespace dbr {

// The one sender of timer ticks under a host; timer connections listen to it.
class QmlTimerHelper : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void timerEventSignal(int id);
};

} // namespace dbr
