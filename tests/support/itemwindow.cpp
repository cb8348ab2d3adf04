#include "itemwindow.h"

#include <QQuickItem>
#include <QTest>

namespace dbr::test {

ItemWindow::ItemWindow(QObject* root)
    : m_root(qobject_cast<QQuickItem*>(root))
{
    Q_ASSERT(m_root);
    m_root->setParentItem(m_window.contentItem());
    m_window.resize(int(m_root->width()), int(m_root->height()));
    m_window.show();
    if (!QTest::qWaitForWindowExposed(&m_window))
        qWarning("The test window was never exposed");
}

ItemWindow::~ItemWindow()
{
    // The item outlives the window: it must leave the scene while the window can
    // still free the item's scene graph nodes.
    m_root->setParentItem(nullptr);
}

QQuickItem* findVisualItem(QQuickItem* root, const QString& name)
{
    for (QQuickItem* child : root->childItems()) {
        if (child->objectName() == name && child->isVisible())
            return child;
        if (QQuickItem* found = findVisualItem(child, name))
            return found;
    }
    return nullptr;
}

void pickRow(QObject* combo, const QString& row)
{
    auto* item = qobject_cast<QQuickItem*>(combo);
    QVERIFY(item && item->window());
    clickItem(item);
    QQuickItem* found = nullptr;
    QTRY_VERIFY((found = findVisualItem(item->window()->contentItem(), row)) != nullptr);
    clickItem(found);
}

void clickItem(QObject* item)
{
    auto* quickItem = qobject_cast<QQuickItem*>(item);
    Q_ASSERT(quickItem && quickItem->window());
    const QPointF centre = quickItem->mapToScene(QPointF(quickItem->width() / 2, quickItem->height() / 2));
    QTest::mouseClick(quickItem->window(), Qt::LeftButton, Qt::NoModifier, centre.toPoint());
}

} // namespace dbr::test
