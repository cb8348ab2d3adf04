#include "qwxwindow.h"

#include "ieventhandler.h"
#include "itemsearch_p.h"
#include "qmlchildlist.h"

#include <QDebug>
#include <QObject>

#include <qut/qtconversions.h>
#include <wut/guicolor.h>

namespace dbr {

qwxWindow::qwxWindow() = default;

qwxWindow::qwxWindow(qwxWindow* parent)
    : m_parent(parent)
{}

qwxWindow::qwxWindow(const qwxWindow& other) = default;
qwxWindow& qwxWindow::operator=(const qwxWindow& other) = default;
qwxWindow::~qwxWindow() = default;

QString qwxWindow::typeId()
{
    return QStringLiteral("qwxWindow");
}

void qwxWindow::SetValidator(const IValidator&)
{
    qWarning("SetValidator on window not allowed");
}

void qwxWindow::SetBackgroundColour(const wxColour&)
{
    qDebug("qwxWindow::SetBackgroundColour : stub");
}

void qwxWindow::TransferDataToWindow()
{
    if (QmlChildList* list = qmlChildren(OwnListOnly))
        list->TransferDataToWindow();
}

void qwxWindow::TransferDataFromWindow()
{
    if (QmlChildList* list = qmlChildren(OwnListOnly))
        list->TransferDataFromWindow();
}

void qwxWindow::Disable()
{
    setQmlProperty("enabled", false);
}

void qwxWindow::Enable()
{
    setQmlProperty("enabled", true);
}

void qwxWindow::Refresh(bool) {}

void qwxWindow::Show()
{
    setQmlProperty("visible", true);
}

void qwxWindow::Hide()
{
    Show(false);
}

void qwxWindow::doEventTableInit() {}

void qwxWindow::resyncToUI() {}

QString qwxWindow::wrappedObjectName() const
{
    return QString();
}

QString qwxWindow::bindControlName() const
{
    return QStringLiteral("wxID_ANY");
}

QObject* qwxWindow::root() const
{
    return m_parent ? m_parent->root() : nullptr;
}

wxWindow* qwxWindow::wx()
{
    return m_parent ? m_parent->wx() : nullptr;
}

QtControlModels* qwxWindow::models()
{
    return m_parent ? m_parent->models() : nullptr;
}

const QmlChildList* qwxWindow::qmlChildren(UseParentListIfNone mode) const
{
    if (mode != UseParentList)
        return nullptr;
    if (m_parent)
        return m_parent->qmlChildren(mode);
    qWarning() << wrappedObjectName() << "window base class doesn't have qml children";
    return nullptr;
}

QmlChildList* qwxWindow::qmlChildren(UseParentListIfNone mode)
{
    return const_cast<QmlChildList*>(static_cast<const qwxWindow*>(this)->qmlChildren(mode));
}

CustomTypes qwxWindow::registerCustomTypes()
{
    return {};
}

void qwxWindow::onCreateWindow() {}

bool qwxWindow::setQmlProperty(const std::string& name, QVariant value)
{
    QObject* item = findItemToAccess("set", name);
    if (!item)
        return false;
    if (item->setProperty(name.c_str(), value))
        return true;
    qWarning().noquote() << QStringLiteral("(%1) Error setting qml property %2 to '%3'")
                                .arg(wrappedObjectName(), QString::fromStdString(name), value.toString());
    return false;
}

QVariant qwxWindow::getQmlProperty(const std::string& name) const
{
    const QObject* item = findItemToAccess("get", name);
    return item ? item->property(name.c_str()) : QVariant();
}

QObject* qwxWindow::findItemToAccess(const char* access, const std::string& property) const
{
    QObject* top = root();
    if (!top) {
        qWarning().noquote() << QStringLiteral("('%1', type: '%2') Unable to %3 qml property %4: no root object")
                                    .arg(wrappedObjectName(), typeName(), QLatin1String(access),
                                         QString::fromStdString(property));
        return nullptr;
    }
    const QString name = wrappedObjectName();
    QObject* item = findObjectUnder(*top, name);
    if (!item) {
        qWarning().noquote() << QStringLiteral("(%1) Unable to %2 qml property %3: object not found")
                                    .arg(name, QLatin1String(access), QString::fromStdString(property));
    }
    return item;
}

QObject* qwxWindow::findObject() const
{
    return findObject(wrappedObjectName());
}

QObject* qwxWindow::findObjectIfAny() const
{
    QObject* top = root();
    return top ? itemsearch::find(*top, wrappedObjectName()) : nullptr;
}

QObject* qwxWindow::findObject(const QString& name) const
{
    QObject* top = root();
    return top ? findObjectUnder(*top, name) : nullptr;
}

QObject* qwxWindow::findObjectUnder(QObject& top, const QString& name)
{
    QObject* found = itemsearch::find(top, name);
    if (!found)
        qWarning() << "Did not find object" << name;
    return found;
}

namespace {

// The host first, then every child in key order.
template<typename Visit>
void forHostAndChildren(qwxWindow& host, QmlChildList& children, Visit visit)
{
    visit(host);
    children.forEachChild(visit);
}

} // namespace

bool qwxWindow::doLoadContent(QmlChildList& children)
{
    if (m_eventTableLoaded)
        return false;
    children.populate(*root());
    resyncToUI(children);
    loadEventTables(children);
    forHostAndChildren(*this, children, [](qwxWindow& window) { window.onCreateWindow(); });
    return true;
}

void qwxWindow::loadEventTables(QmlChildList& children)
{
    forHostAndChildren(*this, children, [](qwxWindow& window) { window.doEventTableInit(); });
}

void qwxWindow::resyncToUI(QmlChildList& children)
{
    forHostAndChildren(*this, children, [](qwxWindow& window) { window.resyncToUI(); });
}

void qwxWindow::resetEventTablesLoaded(QmlChildList& children)
{
    forHostAndChildren(*this, children, [](qwxWindow& window) { window.resetEventTableLoaded(); });
}

void qwxWindow::resetEventTableLoaded()
{
    m_eventTableLoaded = false;
}

wxString qwxWindow::GetName() const
{
    return qut::wxFromQt(wrappedObjectName());
}

qwxWindow* qwxWindow::GetParent() const
{
    return m_parent;
}

void qwxWindow::SetParent(qwxWindow* parent)
{
    m_parent = parent;
}

qwxWindow* qwxWindow::FindWindow(const OdString& name) const
{
    const QmlChildList* list = qmlChildren(UseParentList);
    return list ? list->FindWindow(name) : nullptr;
}

void qwxWindow::Enable(bool enable)
{
    if (enable)
        Enable();
    else
        Disable();
}

bool qwxWindow::IsEnabled() const
{
    return getQmlProperty("enabled").toBool();
}

void qwxWindow::Show(bool show)
{
    setQmlProperty("visible", show);
}

bool qwxWindow::IsShown() const
{
    return getQmlProperty("visible").toBool();
}

void qwxWindow::SetFocus()
{
    setQmlProperty("focus", true);
}

wxColour qwxWindow::GetBackgroundColour() const
{
    return wut::guiColor(wut::EGuiColor(0));
}

qwxSizer* qwxWindow::GetSizer() const
{
    qDebug("qwxWindow::GetSizer : stub");
    return nullptr;
}

void qwxWindow::PopEventHandler(bool)
{
    qDebug("PopEventHandler : stub");
}

void qwxWindow::PushEventHandler(IEventHandler* handler)
{
    qDebug("qwxWindow::PushEventHandler : stub");
    delete handler;
}

long qwxWindow::GetWindowStyle() const
{
    qDebug("qwxWindow::GetWindowStyle : stub");
    return 0;
}

void qwxWindow::SetWindowStyle(long)
{
    qDebug("qwxWindow::SetWindowStyle : stub");
}

wxPoint qwxWindow::ScreenToClient(const wxPoint&) const
{
    qDebug("qwxWindow::ScreenToClient : stub");
    return wxPoint(0, 0);
}

void qwxWindow::Layout() {}

void qwxWindow::OnSize(qwxSizeEvent&) {}

QString getWindowTypeName(const qwxWindow& window)
{
    return window.typeName();
}

void negociateSpacerSize(qwxWindow* window, size_t, bool show)
{
    if (window)
        window->Show(show);
}

void forceLayoutRecalculation(qwxWindow*) {}

} // namespace dbr
