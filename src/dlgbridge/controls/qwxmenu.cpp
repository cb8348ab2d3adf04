#include "qwxmenu.h"

#include <dlgbridge/core/logging_p.h>
#include <dlgbridge/core/qmlcallbacks.h>

#include <QDebug>
#include <QObject>
#include <QPoint>

#include <qut/qtconversions.h>

#include <vector>

namespace dbr {

namespace {

// The wx menu event, the one id a menu binds.
constexpr int menuEventId = 8;

template<typename... Arguments>
bool invokeOn(QObject& item, const char* method, Arguments... arguments)
{
    return QMetaObject::invokeMethod(&item, method, Qt::DirectConnection, arguments...);
}

QVariant textArgument(const wxString& text)
{
    return QVariant(qut::toQt(text));
}

} // namespace

class qwxMenuItemPrivate
{
public:
    std::unique_ptr<QmlGenericCallback> callback;
};

qwxMenuItem::qwxMenuItem(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxMenuItemPrivate>())
{}

qwxMenuItem::~qwxMenuItem() = default;

qwxMenu* qwxMenuItem::GetSubMenu()
{
    qDebug("qwxMenuItem::GetSubMenu: stub");
    return nullptr;
}

void qwxMenuItem::bind(std::function<void(qwxCommandEvent&)> handler)
{
    QObject* entry = findObject();
    if (!entry) {
        qWarning() << wrappedObjectName() << "Did not find menu item object";
        return;
    }
    // Deleting the former callback cuts its connection too.
    d->callback = std::make_unique<QmlGenericCallback>(std::move(handler), this);
    QObject::connect(entry, "2triggered(QObject*)", d->callback.get(), "1onEvent()");
    qCDebug(lcInitSignals).noquote()
        << QStringLiteral("Connect %1 (%2) to %3").arg(entry->objectName(), typeName(), QStringLiteral("triggered"));
}

class qwxMenuPrivate
{
public:
    // Wraps the entry QML just made, or nothing when QML refused it.
    qwxMenuItem* keep(bool made, const wxString& identifier, qwxMenu& menu)
    {
        if (!made)
            return nullptr;
        items.push_back(std::make_unique<qwxMenuItem>(qut::odFromQt(qut::toQt(identifier)), menu));
        return items.back().get();
    }

    std::vector<std::unique_ptr<qwxMenuItem>> items;
};

qwxMenu::qwxMenu(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxMenuPrivate>())
{}

qwxMenu::~qwxMenu() = default;

qwxMenuItem* qwxMenu::Append(const wxString& identifier, const wxString& label, const qwxMenuItem* parent)
{
    QObject* menu = findObject();
    if (!menu)
        return nullptr;
    QObject* target = parent ? parent->findObjectIfAny() : nullptr;
    if (!target)
        target = menu;
    const bool made = invokeOn(*menu, "append", Q_ARG(QVariant, QVariant::fromValue(target)),
                               Q_ARG(QVariant, textArgument(identifier)), Q_ARG(QVariant, textArgument(label)));
    return d->keep(made, identifier, *this);
}

qwxMenuItem* qwxMenu::AppendSubMenu(const wxString& identifier, const wxString& label)
{
    QObject* menu = findObject();
    if (!menu)
        return nullptr;
    const bool made = invokeOn(*menu, "appendSubMenu", Q_ARG(QVariant, textArgument(identifier)),
                               Q_ARG(QVariant, textArgument(label)));
    return d->keep(made, identifier, *this);
}

void qwxMenu::AppendSeparator()
{
    if (QObject* menu = findObject())
        invokeOn(*menu, "appendSeparator");
}

int qwxMenu::GetMenuItemCount() const
{
    return int(d->items.size());
}

void qwxMenu::Clear()
{
    QObject* menu = findObject();
    if (menu && invokeOn(*menu, "clear"))
        d->items.clear();
}

void qwxMenu::Enable(const wxString&, bool)
{
    qDebug("qwxMenu::Enable: stub");
}

void qwxMenu::SetLabel(const wxString&, const wxString&)
{
    qDebug("qwxMenu::SetLabel: stub");
}

qwxMenuItem* qwxMenu::FindItem(const wxString&) const
{
    qDebug("qwxMenu::FindItem: stub");
    return nullptr;
}

void qwxMenu::open(const wxPoint& position)
{
    QObject* menu = findObject();
    if (!menu)
        return;
    if (position == wxDefaultPosition)
        invokeOn(*menu, "doPopup");
    else
        invokeOn(*menu, "doPopupAt", Q_ARG(QVariant, QVariant(QPoint(position.x, position.y))));
}

void qwxMenu::Bind(int id, std::function<void(qwxCommandEvent&)> handler, QString itemName)
{
    doBind(id, std::move(handler), itemName);
}

void qwxMenu::doBind(int id, std::function<void(qwxCommandEvent&)> handler, const QString& itemName)
{
    if (!qmlChildren(UseParentList))
        return;
    if (id != menuEventId) {
        qWarning() << "Unknown ID for menu to bind to:" << id;
        return;
    }
    for (const std::unique_ptr<qwxMenuItem>& item : d->items) {
        if (item->wrappedObjectName() == itemName) {
            item->bind(std::move(handler));
            return;
        }
    }
    qWarning() << "Did not find a menu item" << itemName << "to connect to";
}

// A member of the window class, defined here so that core needs no menu.
void qwxWindow::PopupMenu(qwxMenu* menu, const wxPoint& position)
{
    menu->open(position);
}

} // namespace dbr
