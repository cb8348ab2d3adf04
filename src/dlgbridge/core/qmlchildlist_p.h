#pragma once

#include "qmlchildlist.h"
#include "qmltimerhelper_p.h"

namespace dbr {

class QmlChildListPrivate
{
public:
    explicit QmlChildListPrivate(qwxWindow& host)
        : parent(host)
    {}

    ~QmlChildListPrivate()
    {
        timerHelper.reset();
        destroyCallbacks();
        children.clear();
    }

    void destroyCallbacks()
    {
        for (auto& callback : callbacks)
            callback.reset();
        callbacks.clear();
        connections.clear();
    }

    // While wrappers are destroyed their items may still signal; a callback must
    // not hand a dying wrapper to a handler.
    void silenceCallbacks()
    {
        for (const QMetaObject::Connection& connection : connections)
            QObject::disconnect(connection);
        connections.clear();
    }

    template<typename Visit>
    void forEachChild(Visit visit)
    {
        for (auto& entry : children) {
            for (auto& window : entry.second)
                visit(*window);
        }
    }

    qwxWindow& parent;
    QmlChildList::ChildMap children;
    std::vector<std::unique_ptr<QObject>> callbacks;
    std::vector<QMetaObject::Connection> connections;
    std::unique_ptr<QmlTimerHelper> timerHelper;
};

} // namespace dbr
