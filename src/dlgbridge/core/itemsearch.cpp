#include "itemsearch_p.h"

#include <QObject>

namespace dbr::itemsearch {

namespace {

// findChild's order: a parent's children are all compared before any of them is
// searched, so the first match of each name is the one findChild returns.
class Walk
{
public:
    explicit Walk(QSet<QString> names)
        : m_pending(std::move(names))
    {}

    void compare(QObject& object)
    {
        const auto pending = m_pending.find(object.objectName());
        if (pending == m_pending.end())
            return;
        m_found.insert(*pending, &object);
        m_pending.erase(pending);
    }

    void searchBelow(const QObject& parent)
    {
        const QObjectList& children = parent.children();
        for (QObject* child : children) {
            compare(*child);
            if (m_pending.isEmpty())
                return;
        }
        for (QObject* child : children) {
            searchBelow(*child);
            if (m_pending.isEmpty())
                return;
        }
    }

    bool done() const { return m_pending.isEmpty(); }
    QHash<QString, QObject*> result() { return std::move(m_found); }

private:
    QSet<QString> m_pending;
    QHash<QString, QObject*> m_found;
};

} // namespace

QObject* find(QObject& root, const QString& name)
{
    if (root.objectName() == name)
        return &root;
    // findChild takes a null name for "any name"; an empty one is a name like the others.
    if (name.isNull())
        return root.findChild<QObject*>(QLatin1String(""), Qt::FindChildrenRecursively);
    return root.findChild<QObject*>(name, Qt::FindChildrenRecursively);
}

QHash<QString, QObject*> findAll(QObject& root, QSet<QString> names)
{
    Walk walk(std::move(names));
    walk.compare(root);
    if (!walk.done())
        walk.searchBelow(root);
    return walk.result();
}

} // namespace dbr::itemsearch
