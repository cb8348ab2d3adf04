#include "benchtree.h"

#include <QQuickItem>

#include <vector>

namespace dbr::bench {

namespace {
constexpr int fanOut = 10;
}

BenchTree::BenchTree(int size)
    : m_size(size)
    , m_root(std::make_unique<QQuickItem>())
{
    m_root->setObjectName(QStringLiteral("root"));
    std::vector<QQuickItem*> items;
    items.reserve(size_t(size));
    for (int i = 0; i < size; ++i) {
        QQuickItem* parent = i < fanOut ? m_root.get() : items[size_t(i / fanOut - 1)];
        auto* item = new QQuickItem(parent);
        item->setObjectName(QStringLiteral("item%1").arg(i));
        item->setProperty("qmlType", QStringLiteral("Field"));
        items.push_back(item);
    }
}

BenchTree::~BenchTree() = default;

BenchHost::BenchHost(QObject& root)
    : m_root(root)
    , m_list(*this)
{}

BenchHost::~BenchHost() = default;

QString BenchHost::typeName() const
{
    return QStringLiteral("BenchHost");
}

QObject* BenchHost::root() const
{
    return &m_root;
}

const QmlChildList* BenchHost::qmlChildren(UseParentListIfNone) const
{
    return &m_list;
}

QmlChildList* BenchHost::qmlChildren(UseParentListIfNone)
{
    return &m_list;
}

CustomTypes BenchHost::registerCustomTypes()
{
    return {{QStringLiteral("Field"),
             [](const OdString& name, qwxWindow& parent) { return std::make_unique<BenchControl>(name, parent); }}};
}

QString BenchControl::typeName() const
{
    return QStringLiteral("BenchControl");
}

} // namespace dbr::bench
