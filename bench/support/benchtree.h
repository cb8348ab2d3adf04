#pragma once

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QString>

#include <memory>

class QQuickItem;

namespace dbr::bench {

// A tree of Qt Quick items named "item0", "item1", ... in breadth-first order,
// ten children to a node, each declaring the QML type "Field".
class BenchTree
{
public:
    explicit BenchTree(int size);
    ~BenchTree();

    QQuickItem& root() { return *m_root; }
    // The first child of the root, found at once.
    static QString frontName() { return QStringLiteral("item0"); }
    // The last item of the deepest level, found last.
    QString deepName() const { return QStringLiteral("item%1").arg(m_size - 1); }
    static QString missingName() { return QStringLiteral("absent"); }

private:
    int m_size;
    std::unique_ptr<QQuickItem> m_root;
};

// A host over a QML root that wraps every "Field" as a BenchControl.
class BenchHost : public qwxWindow
{
public:
    explicit BenchHost(QObject& root);
    ~BenchHost() override;

    QString typeName() const override;
    QObject* root() const override;
    const QmlChildList* qmlChildren(UseParentListIfNone mode) const override;
    QmlChildList* qmlChildren(UseParentListIfNone mode) override;
    CustomTypes registerCustomTypes() override;

    QmlChildList& list() { return m_list; }

private:
    QObject& m_root;
    QmlChildList m_list;
};

class BenchControl : public qwxControl
{
public:
    using qwxControl::qwxControl;
    QString typeName() const override;
};

} // namespace dbr::bench
