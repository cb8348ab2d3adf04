#include "qwxtimer.h"

#include <dlgbridge/core/qmlchildlist.h>

#include <QDebug>
#include <QTimer>

namespace dbr {

class qwxTimerPrivate : public QTimer
{
public:
    explicit qwxTimerPrivate(int timerId)
        : id(timerId)
    {}

    const int id;
};

namespace {

QmlChildList* listOf(qwxWindow* owner)
{
    return owner ? owner->qmlChildren(qwxWindow::UseParentList) : nullptr;
}

} // namespace

qwxTimer::qwxTimer(qwxWindow* owner, int id)
    : qwxTimer(listOf(owner), id)
{}

qwxTimer::qwxTimer(QmlChildList* list, int id)
    : d(std::make_unique<qwxTimerPrivate>(id))
{
    if (!list) {
        qCritical("Invalid parent for qwx timer");
        return;
    }
    QObject::connect(
        d.get(), &QTimer::timeout, d.get(), [list, id] { list->onTimer(id); }, Qt::DirectConnection);
}

qwxTimer::~qwxTimer() = default;

void qwxTimer::Start(int milliseconds)
{
    d->start(milliseconds);
}

void qwxTimer::Stop()
{
    d->stop();
}

bool qwxTimer::IsRunning() const
{
    return d->isActive();
}

int qwxTimer::GetId() const
{
    return d->id;
}

} // namespace dbr
