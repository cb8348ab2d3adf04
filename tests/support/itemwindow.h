#pragma once

#include <QQuickWindow>

class QQuickItem;

namespace dbr::test {

// Shows a QML item in a real window, offscreen, so that it can be clicked.
class ItemWindow
{
public:
    explicit ItemWindow(QObject* root);
    ~ItemWindow();

    QQuickWindow* window() { return &m_window; }

private:
    QQuickWindow m_window;
    QQuickItem* m_root;
};

// The first visible item of that name below root.
QQuickItem* findVisualItem(QQuickItem* root, const QString& name);

// Presses and releases the left button in the middle of a shown item.
void clickItem(QObject* item);

// Opens a combo's pop-up with a click and clicks the row of that name in it;
// a test failure when the row doesn't show.
void pickRow(QObject* combo, const QString& row);

} // namespace dbr::test
