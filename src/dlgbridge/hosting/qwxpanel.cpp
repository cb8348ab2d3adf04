#include "qwxpanel.h"

#include <QDebug>
#include <QPointer>
#include <QQuickItem>

#include <qut/qtconversions.h>

namespace dbr {

class qwxPanelPrivate
{
public:
    explicit qwxPanelPrivate(QString panelName)
        : name(std::move(panelName))
    {}

    // The item may go with its Loader or a reload; then the panel has no root.
    QPointer<QObject> root;
    QString name;
};

qwxPanel::qwxPanel(const OdString& name, qwxWindow& parent)
    : qwxWindow(&parent)
    , d(std::make_unique<qwxPanelPrivate>(qut::toQt(name)))
{
    init(d->name);
}

qwxPanel::qwxPanel(qwxWindow& parent)
    : qwxWindow(&parent)
    , d(std::make_unique<qwxPanelPrivate>(QString()))
{}

qwxPanel::~qwxPanel() = default;

QString qwxPanel::wrappedObjectName() const
{
    return d->name;
}

QObject* qwxPanel::root() const
{
    return d->root;
}

bool qwxPanel::init(const QString& name)
{
    if (d->root) {
        qWarning().noquote() << QStringLiteral("Panel '%1' is already initialized").arg(wrappedObjectName());
        return true;
    }
    QObject* parentRoot = GetParent() ? GetParent()->root() : nullptr;
    if (!parentRoot) {
        qCritical().noquote() << QStringLiteral("Unable to create panel (%1): invalid parent root").arg(name);
        return false;
    }
    QQuickItem* item = parentRoot->findChild<QQuickItem*>(name, Qt::FindChildrenRecursively);
    if (!item) {
        qCritical().noquote() << QStringLiteral("Unable to create panel: panel root '%1' not found").arg(name);
        return false;
    }
    d->root = item;
    d->name = name;
    doEventTableInit();
    return true;
}

void qwxPanel::Reparent(qwxWindow& newParent)
{
    // Items without a parent in common can still make a circle of wrappers.
    for (const qwxWindow* ancestor = &newParent; ancestor; ancestor = ancestor->GetParent()) {
        if (ancestor == this) {
            qWarning().noquote() << QStringLiteral("(%1) Unable to move the panel into '%2', which it holds")
                                        .arg(wrappedObjectName(), newParent.wrappedObjectName());
            return;
        }
    }
    QObject* target = newParent.findObject();
    // A panel built on a component with a content item takes its children there.
    if (dynamic_cast<qwxPanel*>(&newParent) && target) {
        const QVariant content = target->property("contentItem");
        if (content.isValid() && content.value<QObject*>())
            target = content.value<QObject*>();
    }
    if (!setQmlProperty("parent", QVariant::fromValue(target)))
        return;
    // Qt Quick refuses a parent from the item's own subtree, with a warning but without failing the write.
    if (getQmlProperty("parent").value<QObject*>() != target) {
        qWarning().noquote() << QStringLiteral("(%1) The item refused '%2' as its parent")
                                    .arg(wrappedObjectName(), newParent.wrappedObjectName());
        return;
    }
    SetParent(&newParent);
}

namespace wut {

bool loadPanel(qwxPanel* panel, const QString& name)
{
    if (!panel) {
        qCritical() << "Attempt to load empty panel" << name;
        return false;
    }
    return panel->init(name);
}

} // namespace wut

} // namespace dbr
