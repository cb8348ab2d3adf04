#include "testhost.h"

namespace dbr::test {

TestHost::TestHost(QObject* root, const QString& name)
    : m_root(root)
    , m_name(name)
    , m_list(*this)
{}

TestHost::~TestHost() = default;

QString TestHost::typeId()
{
    return QStringLiteral("TestHost");
}

QString TestHost::typeName() const
{
    return typeId();
}

QString TestHost::wrappedObjectName() const
{
    return m_name;
}

QObject* TestHost::root() const
{
    return m_root;
}

const QmlChildList* TestHost::qmlChildren(UseParentListIfNone) const
{
    return &m_list;
}

QmlChildList* TestHost::qmlChildren(UseParentListIfNone)
{
    return &m_list;
}

CustomTypes TestHost::registerCustomTypes()
{
    return m_customTypes;
}

void TestHost::populate()
{
    if (m_root)
        m_list.populate(*m_root);
}

QString TestControl::typeId()
{
    return QStringLiteral("TestControl");
}

QString TestControl::typeName() const
{
    return typeId();
}

} // namespace dbr::test
