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
    std::unique_ptr<QmlTimerHelper> timerHelper;
};

} // namespace dbr
