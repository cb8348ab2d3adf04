#include "qmlchildlist.h"

#include "qmlchildlist_p.h"
#include "typetable_p.h"

#include <QDebug>
#include <QObject>

#include <qut/qtconversions.h>

namespace dbr {

QmlChildList::QmlChildList(qwxWindow& parent)
    : d(std::make_unique<QmlChildListPrivate>(parent))
{}

QmlChildList::~QmlChildList() = default;

void QmlChildList::populate(QObject& root)
{
    d->silenceCallbacks();
    d->children.clear();
    resetCallbacks();
    // The list is empty here, so the walk's map is taken whole rather than merged key by key.
    d->children = createWrappers(&root, parent());
}

void QmlChildList::reset()
{
    d->silenceCallbacks();
    d->children.clear();
    resetCallbacks();
}

void QmlChildList::resetCallbacks()
{
    d->destroyCallbacks();
    d->timerHelper.reset();
}

qwxWindow& QmlChildList::parent() const
{
    return d->parent;
}

QmlChildList::ChildMap& QmlChildList::children() const
{
    return d->children;
}

QObject* QmlChildList::root()
{
    return parent().root();
}

qwxWindow* QmlChildList::FindWindow(const OdString& name) const
{
    return d->findWindow(qut::toQt(name));
}

void QmlChildList::reportTypeMismatch(const OdString& name, const qwxWindow& window, const QString& expectedType)
{
    const QString actualType = window.typeName();
    qCritical().noquote() << QStringLiteral("Child object (%1) has type '%2', expected '%3'")
                                 .arg(qut::toQt(name), actualType, expectedType);
    if (actualType == expectedType) {
        qCritical("Type and expected type names being equal could mean the component type is derived from this "
                  "type, but the 'qmlType' property is not set in the qml component");
    }
}

QObject& QmlChildList::addQmlCallback(std::unique_ptr<QObject> callback)
{
    d->callbacks.push_back(std::move(callback));
    return *d->callbacks.back();
}

void QmlChildList::forEachChild(const std::function<void(qwxWindow&)>& visit) const
{
    d->forEachChild(visit);
}

void QmlChildList::TransferDataToWindow()
{
    d->forEachChild([](qwxWindow& window) { window.TransferDataToWindow(); });
}

void QmlChildList::TransferDataFromWindow()
{
    d->forEachChild([](qwxWindow& window) { window.TransferDataFromWindow(); });
}

void QmlChildList::onTimer(int id)
{
    if (d->timerHelper)
        Q_EMIT d->timerHelper->timerEventSignal(id);
    else
        qCritical() << "No timer helper initialized" << id;
}

} // namespace dbr
