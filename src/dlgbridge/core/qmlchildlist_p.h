#pragma once

#include "qmlchildlist.h"
#include "qmltimerhelper_p.h"

#include <QDebug>

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

    // The wrapper of that name, or the host when the name is its own.
    qwxWindow* findWindow(const QString& wanted) const
    {
        if (wanted == parent.wrappedObjectName())
            return &parent;
        const auto entry = children.find(wanted);
        if (entry == children.end()) {
            qCritical().noquote() << QStringLiteral("Unable to find window object '%1'").arg(wanted);
            return nullptr;
        }
        const auto& windows = entry->second;
        if (windows.size() == 1)
            return windows.front().get();
        qCritical().noquote() << QStringLiteral("Error getting single window object '%1': %2 instances found")
                                     .arg(wanted, QString::number(windows.size()));
        return nullptr;
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
