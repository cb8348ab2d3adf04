#include "typetable.h"
#include "typetable_p.h"

#include "logging_p.h"

#include "wrapperkinds.h"

#include <QDebug>
#include <QObject>
#include <QStringList>

#include <qut/qtconversions.h>

namespace dbr {

namespace {

const QString wxIdAny = QStringLiteral("wxID_ANY");

bool isGenericType(const QString& type)
{
    static const QStringList generic = {QStringLiteral("QQuickItem"), QStringLiteral("QQuickRowLayout"),
                                        QStringLiteral("QQuickColumnLayout"), QStringLiteral("Control")};
    return generic.contains(type);
}

// Types that are known to need no wrapper, so they draw no complaint.
bool isUnwrappedType(const QString& type)
{
    static const QStringList unwrapped = {QStringLiteral("PanelLoader"), QStringLiteral("QQuickLoader"),
                                          QStringLiteral("QQuickIconImage"), QStringLiteral("DialogAV")};
    return unwrapped.contains(type);
}

QLatin1String className(const QObject& object)
{
    return QLatin1String(object.metaObject()->className());
}

// Subtrees that belong to a control's own making and never hold dialog items.
bool isHiddenSubtree(const QObject& object)
{
    const QLatin1String name = className(object);
    return (name == QLatin1String("QQuickMnemonicLabel") && object.objectName() == QLatin1String("label")) ||
           name == QLatin1String("QQuickContentItem");
}

std::unique_ptr<qwxWindow> createFromTable(QObject& item, const QString& name, const QString& type, qwxWindow& host)
{
    if (const StandardWrapperFactory create = standardWrapperFactory(type)) {
        qCDebug(lcInitTypes).noquote() << QStringLiteral("(%1) Creating wxconv wrapper '%2'").arg(name, type);
        return create(item, qut::odFromQt(name), host);
    }
    if (type == QLatin1String("Menu"))
        qWarning().noquote() << QStringLiteral("(%1) 'Menu' is unsupported, use WxConvMenu instead").arg(name);
    else if (!isUnwrappedType(type))
        qDebug() << "Did not find backend component for" << name << "with qml type:" << type;
    return nullptr;
}

class TypeWalk
{
public:
    explicit TypeWalk(qwxWindow& host)
        : m_host(host)
        , m_customTypes(host.registerCustomTypes())
    {}

    QmlChildList::ChildMap run(QObject* root)
    {
        m_pending.push_back(root);
        while (!m_pending.empty()) {
            QObject* current = m_pending.back();
            m_pending.pop_back();
            visit(current);
        }
        qCDebug(lcInitTypes) << "Created" << m_result.size() << "objects";
        return std::move(m_result);
    }

private:
    void visit(QObject* current)
    {
        if (!current) {
            qWarning("invalid current object");
            return;
        }
        if (isHiddenSubtree(*current))
            return;
        pushChildren(*current);

        const QString name = current->objectName();
        if (name.isEmpty())
            return;
        const QString type = qmlTypeOf(current);
        if (type.isEmpty()) {
            if (name != wxIdAny)
                qWarning() << "Unable to get qml type of" << name << "(" << current->metaObject()->className() << ")";
            return;
        }
        if (std::unique_ptr<qwxWindow> wrapper = create(*current, name, type))
            add(name, std::move(wrapper));
    }

    void pushChildren(const QObject& object)
    {
        for (QObject* child : object.children()) {
            // A delegate model's objects are the rows of a view, never controls of the dialog.
            if (className(*child) != QLatin1String("QQmlDelegateModel"))
                m_pending.push_back(child);
        }
    }

    std::unique_ptr<qwxWindow> create(QObject& item, const QString& name, const QString& type)
    {
        const auto custom = m_customTypes.find(type);
        if (custom == m_customTypes.end())
            return createFromTable(item, name, type, m_host);
        qCDebug(lcInitTypes) << "Creating object of custom type" << type;
        return custom->second(qut::odFromQt(name), m_host);
    }

    // A type registered by a wrapper holds for every item visited after it;
    // the first registration of a type stays.
    void add(const QString& name, std::unique_ptr<qwxWindow> wrapper)
    {
        m_customTypes.merge(wrapper->registerCustomTypes());
        m_result[name].push_back(std::move(wrapper));
    }

    qwxWindow& m_host;
    CustomTypes m_customTypes;
    std::vector<QObject*> m_pending;
    QmlChildList::ChildMap m_result;
};

} // namespace

QString rawQmlType(QObject* object)
{
    if (!object)
        return QString();
    const QVariant declared = object->property("qmlType");
    if (declared.type() == QVariant::String)
        return declared.toString();

    const QString name = className(*object);
    const int marker = name.indexOf(QLatin1String("_QMLTYPE_"));
    if (marker >= 1)
        return name.left(marker);
    return name.startsWith(QLatin1String("QQuick")) ? name : QString();
}

QString qmlTypeOf(QObject* object)
{
    const QString type = rawQmlType(object);
    if (!isGenericType(type))
        return type;
    const QString name = object->objectName();
    if (name.startsWith(QLatin1String("PANEL_")))
        return QStringLiteral("Pane");
    if (name != wxIdAny) {
        qWarning() << "Component" << name << "(" << type << ")"
                   << "must have a 'qmlType' property to allow creating the correct backend component";
    }
    return QString();
}

QmlChildList::ChildMap createWrappers(QObject* root, qwxWindow& host)
{
    return TypeWalk(host).run(root);
}

} // namespace dbr
