#include "scriptplayer.h"

#include <QCursor>
#include <QDebug>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTimer>

namespace {
// Long enough for timers and animations of a sample to run between two steps.
constexpr int stepIntervalMs = 300;
constexpr int dragSteps = 8;

QPointF centreOf(const QQuickItem* item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
}

// Items of a window are its visual tree, whatever their QObject parents.
QQuickItem* findVisualItem(QQuickItem* root, const QString& name)
{
    for (QQuickItem* child : root->childItems()) {
        if (child->objectName() == name)
            return child;
        if (QQuickItem* found = findVisualItem(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

ScriptPlayer::ScriptPlayer(std::function<QObject*()> root, QString screenshotPath)
    : m_root(std::move(root))
    , m_screenshotPath(std::move(screenshotPath))
{}

void ScriptPlayer::setSteps(std::vector<Step> steps)
{
    m_steps = std::move(steps);
    m_next = 0;
}

void ScriptPlayer::start()
{
    QTimer::singleShot(stepIntervalMs, this, &ScriptPlayer::next);
}

void ScriptPlayer::next()
{
    if (m_next == m_steps.size())
        return;
    // Scheduled first: a step may block in a modal loop of its own, which runs the next one.
    QTimer::singleShot(stepIntervalMs, this, &ScriptPlayer::next);
    m_steps[m_next++]();
}

QObject* ScriptPlayer::object(const char* name) const
{
    QObject* root = m_root();
    QObject* found = root ? root->findChild<QObject*>(QLatin1String(name)) : nullptr;
    // A view's delegates belong to its model: they are found in the item tree only.
    if (!found && qobject_cast<QQuickItem*>(root))
        found = findVisualItem(static_cast<QQuickItem*>(root), QLatin1String(name));
    if (!found)
        qWarning() << "The script found no item" << name;
    return found;
}

QQuickItem* ScriptPlayer::item(const char* name) const
{
    return qobject_cast<QQuickItem*>(object(name));
}

QQuickItem* ScriptPlayer::itemAt(const char* name, int index) const
{
    QQuickItem* found = nullptr;
    if (QObject* owner = object(name))
        QMetaObject::invokeMethod(owner, "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, index));
    return found;
}

void ScriptPlayer::click(const char* name, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    clickItem(item(name), name, button, modifiers);
}

void ScriptPlayer::clickItem(QQuickItem* item, const char* name, Qt::MouseButton button,
                             Qt::KeyboardModifiers modifiers)
{
    if (!item || !item->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    const QPointF centre = centreOf(item);
    // The pointer goes there first: a menu pops up at it and takes clicks only on an entry it entered.
    QCursor::setPos(item->window()->mapToGlobal(centre.toPoint()));
    sendMouse(item->window(), QEvent::MouseMove, centre, Qt::NoButton, Qt::NoButton, modifiers);
    sendMouse(item->window(), QEvent::MouseButtonPress, centre, button, button, modifiers);
    sendMouse(item->window(), QEvent::MouseButtonRelease, centre, button, Qt::NoButton, modifiers);
}

void ScriptPlayer::doubleClickItem(QQuickItem* item, const char* name)
{
    clickItem(item, name);
    if (!item || !item->window())
        return;
    const QPointF centre = centreOf(item);
    sendMouse(item->window(), QEvent::MouseButtonPress, centre, Qt::LeftButton, Qt::LeftButton);
    sendMouse(item->window(), QEvent::MouseButtonDblClick, centre, Qt::LeftButton, Qt::LeftButton);
    sendMouse(item->window(), QEvent::MouseButtonRelease, centre, Qt::LeftButton, Qt::NoButton);
}

void ScriptPlayer::dragItem(QQuickItem* from, QQuickItem* to, const char* name)
{
    if (!from || !to || !from->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    QWindow* window = from->window();
    const QPointF start = centreOf(from);
    const QPointF end = centreOf(to);
    sendMouse(window, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= dragSteps; ++step) {
        const QPointF at = start + (end - start) * step / dragSteps;
        sendMouse(window, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    }
    sendMouse(window, QEvent::MouseButtonRelease, end, Qt::LeftButton, Qt::NoButton);
}

QQuickItem* ScriptPlayer::focusOn(const char* name) const
{
    QQuickItem* target = item(name);
    if (target)
        target->forceActiveFocus();
    return target && target->window() ? target : nullptr;
}

void ScriptPlayer::typeInto(const char* name, const QString& text)
{
    if (focusOn(name))
        type(text);
}

void ScriptPlayer::pressKey(const char* name, Qt::Key key)
{
    if (focusOn(name))
        pressKey(key);
}

void ScriptPlayer::type(const QString& text)
{
    for (const QChar character : text)
        sendKey(0, QString(character));
}

void ScriptPlayer::pressKey(Qt::Key key)
{
    sendKey(key, QString());
}

void ScriptPlayer::sendKey(int key, const QString& text)
{
    auto* root = qobject_cast<QQuickItem*>(m_root());
    if (root && root->window())
        sendKey(root->window(), key, text);
}

void ScriptPlayer::sendKey(QWindow* window, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QGuiApplication::sendEvent(window, &press);
    QGuiApplication::sendEvent(window, &release);
}

QQuickItem* ScriptPlayer::rowShowing(const char* view, const QString& text) const
{
    QQuickItem* owner = item(view);
    if (!owner)
        return nullptr;
    // Rows (a table's cells and header sections) are the delegates under a view's content item;
    // a row shows its text in a label.
    const auto lists = owner->findChildren<QQuickItem*>();
    for (QQuickItem* list : lists) {
        if (!list->inherits("QQuickListView") && !list->inherits("QQuickTableView"))
            continue;
        QMetaObject::invokeMethod(list, "forceLayout");
        for (QQuickItem* row : list->property("contentItem").value<QQuickItem*>()->childItems()) {
            for (QQuickItem* label : row->findChildren<QQuickItem*>()) {
                if (label->inherits("QQuickText") && label->isVisible() && label->property("text") == text)
                    return row;
            }
        }
    }
    qWarning() << "The script found no row" << text << "in" << view;
    return nullptr;
}

void ScriptPlayer::hoverItem(QQuickItem* item, const char* name)
{
    if (!item || !item->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    sendMouse(item->window(), QEvent::MouseMove, centreOf(item), Qt::NoButton, Qt::NoButton);
}

void ScriptPlayer::clickTab(const char* notebook, int page)
{
    clickItem(itemAt(notebook, page), notebook);
}

void ScriptPlayer::clickMenuEntry(const char* menu, const char* identifier)
{
    QObject* owner = object(menu);
    const int count = owner ? owner->property("count").toInt() : 0;
    for (int index = 0; index < count; ++index) {
        QQuickItem* entry = itemAt(menu, index);
        const auto* action = entry ? entry->property("action").value<QObject*>() : nullptr;
        if (action && action->objectName() == QLatin1String(identifier)) {
            clickItem(entry, identifier);
            return;
        }
    }
    qWarning() << "The script found no menu entry" << identifier;
}

void ScriptPlayer::clickInMessageBox(int button)
{
    const QString name = QStringLiteral("messageButton%1").arg(button);
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* quickWindow = qobject_cast<QQuickWindow*>(window);
        if (!quickWindow || !quickWindow->isVisible())
            continue;
        if (QQuickItem* box = findVisualItem(quickWindow->contentItem(), QStringLiteral("MessageBox"))) {
            clickItem(findVisualItem(box, name), qPrintable(name));
            return;
        }
    }
    qWarning() << "The script found no message box";
}

void ScriptPlayer::clickPopupRow(const char* row)
{
    auto* root = qobject_cast<QQuickItem*>(m_root());
    // A pop-up shows in its window's overlay, beside the root rather than under it.
    QQuickItem* found =
        root && root->window() ? findVisualItem(root->window()->contentItem(), QLatin1String(row)) : nullptr;
    clickItem(found && found->isVisible() ? found : nullptr, row);
}

QQuickItem* ScriptPlayer::itemInDialog(const char* dialog, const char* name) const
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* quickWindow = qobject_cast<QQuickWindow*>(window);
        if (!quickWindow || !quickWindow->isVisible())
            continue;
        if (QQuickItem* root = findVisualItem(quickWindow->contentItem(), QLatin1String(dialog)))
            return qstrcmp(dialog, name) == 0 ? root : findVisualItem(root, QLatin1String(name));
    }
    return nullptr;
}

bool ScriptPlayer::dialogReady(const QQuickItem* item)
{
    // A dialog's window shows a moment after the call that opens it, and a slow
    // machine loses the events sent to it before then.
    constexpr int maxRetries = 20;
    if (!item || !item->window() || item->window()->isExposed() || m_retries == maxRetries) {
        m_retries = 0;
        return true;
    }
    ++m_retries;
    --m_next;
    return false;
}

void ScriptPlayer::clickInDialog(const char* dialog, const char* name)
{
    QQuickItem* target = itemInDialog(dialog, name);
    if (dialogReady(target))
        clickItem(target, name);
}

void ScriptPlayer::typeInDialog(const char* dialog, const char* name, const QString& text)
{
    QQuickItem* target = itemInDialog(dialog, name);
    if (!target || !target->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    if (!dialogReady(target))
        return;
    target->forceActiveFocus();
    for (const QChar character : text)
        sendKey(target->window(), 0, QString(character));
}

void ScriptPlayer::setOn(const char* name, const char* property, const QVariant& value)
{
    if (QObject* target = object(name))
        target->setProperty(property, value);
}

void ScriptPlayer::sendMouse(QWindow* window, QEvent::Type type, const QPointF& at, Qt::MouseButton button,
                             Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(type, at, at, window->mapToGlobal(at.toPoint()), button, buttons, modifiers);
    QGuiApplication::sendEvent(window, &event);
}

void ScriptPlayer::saveScreenshot(const QList<QQuickItem*>& besides)
{
    QList<QQuickItem*> items{qobject_cast<QQuickItem*>(m_root())};
    items += besides;
    grab(items);
}

void ScriptPlayer::saveWindowScreenshot()
{
    auto* root = qobject_cast<QQuickItem*>(m_root());
    grab({root && root->window() ? root->window()->contentItem() : nullptr});
}

void ScriptPlayer::grab(const QList<QQuickItem*>& items)
{
    // grabWindow() gives nothing with the software backend offscreen; an item grab does.
    m_grabs.clear();
    if (items.contains(nullptr)) {
        qWarning() << "The script found no window to grab for a screenshot";
        return;
    }
    for (QQuickItem* item : qAsConst(items)) {
        const auto grab = item->window() ? item->grabToImage() : nullptr;
        if (!grab) {
            qWarning() << "Could not grab the sample for a screenshot";
            m_grabs.clear();
            return;
        }
        m_grabs.push_back({grab, item->window()->position()});
        connect(grab.data(), &QQuickItemGrabResult::ready, this, &ScriptPlayer::composeScreenshot);
    }
}

void ScriptPlayer::composeScreenshot()
{
    QRect bounds;
    for (const Grab& grab : m_grabs) {
        if (grab.result->image().isNull())
            return;
        bounds |= QRect(grab.at, grab.result->image().size());
    }
    // Each grab where its window stands, on the bounds of them all.
    QImage screenshot(bounds.size(), QImage::Format_ARGB32);
    screenshot.fill(Qt::transparent);
    QPainter painter(&screenshot);
    for (const Grab& grab : m_grabs)
        painter.drawImage(grab.at - bounds.topLeft(), grab.result->image());
    painter.end();
    m_screenshotSaved = screenshot.save(m_screenshotPath);
    if (!m_screenshotSaved)
        qWarning() << "Could not save a screenshot to" << m_screenshotPath;
}
