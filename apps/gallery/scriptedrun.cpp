#include "scriptedrun.h"

#include "sampledialog.h"

#include <QCursor>
#include <QGuiApplication>
#include <QDebug>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QTimer>

namespace {
// Long enough for the preview's timer to fill the gauge between two steps.
constexpr int stepIntervalMs = 300;
} // namespace

ScriptedRun::ScriptedRun(SampleDialog& dialog, QString screenshotPath)
    : m_dialog(dialog)
    , m_screenshotPath(std::move(screenshotPath))
{
    m_steps = {
        [this] { m_dialog.waitForExposed(); },
        [this] { click("preview"); },
        [this] { click("wxID_OK"); },
        [this] { click("agree"); },
        [this] { invoke("plotTitle", "insert", Q_ARG(int, 0), Q_ARG(QString, QStringLiteral("Ground floor"))); },
        [this] { click("plotTitle", Qt::RightButton); },
        [this] { clickMenuEntry("titleMenu", "addScale"); },
        [this] { clickTab("book", 1); },
        [this] {
            setOn("plotter", "currentIndex", 1);
            invoke("plotter", "activated", Q_ARG(int, 1));
        },
        [this] { setOn("paper", "editText", QStringLiteral("A2")); },
        [this] { setOn("style", "currentIndex", 1); },
        [this] { clickTab("book", 0); },
        [this] { setOn("copies", "value", 3); },
        [this] { click("wxID_APPLY"); },
        // Apply asks in a message box, whose own loop runs the next step.
        [this] { clickInMessageBox(0); },
        [this] { saveScreenshot(); },
        [this] { click("wxID_OK"); },
    };
}

void ScriptedRun::start()
{
    QTimer::singleShot(stepIntervalMs, this, &ScriptedRun::next);
}

void ScriptedRun::next()
{
    if (m_next == m_steps.size())
        return;
    // Scheduled first: a step may block in a modal loop of its own, which runs the next one.
    QTimer::singleShot(stepIntervalMs, this, &ScriptedRun::next);
    m_steps[m_next++]();
}

void ScriptedRun::click(const char* name, Qt::MouseButton button)
{
    clickItem(m_dialog.root()->findChild<QQuickItem*>(QLatin1String(name)), name, button);
}

QQuickItem* ScriptedRun::itemAt(const char* name, int index) const
{
    QQuickItem* found = nullptr;
    QMetaObject::invokeMethod(m_dialog.root()->findChild<QObject*>(QLatin1String(name)), "itemAt",
                              Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, index));
    return found;
}

void ScriptedRun::clickTab(const char* notebook, int page)
{
    clickItem(itemAt(notebook, page), notebook);
}

void ScriptedRun::clickMenuEntry(const char* menu, const char* identifier)
{
    const int count = m_dialog.root()->findChild<QObject*>(QLatin1String(menu))->property("count").toInt();
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

namespace {

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

void ScriptedRun::clickInMessageBox(int button)
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

void ScriptedRun::clickItem(QQuickItem* item, const char* name, Qt::MouseButton button)
{
    if (!item || !item->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    const QPoint global = item->window()->mapToGlobal(centre.toPoint());
    // The pointer goes there first: a menu pops up at it and takes clicks only on an entry it entered.
    QCursor::setPos(global);
    sendMouse(item->window(), QEvent::MouseMove, centre, Qt::NoButton, Qt::NoButton);
    sendMouse(item->window(), QEvent::MouseButtonPress, centre, button, button);
    sendMouse(item->window(), QEvent::MouseButtonRelease, centre, button, Qt::NoButton);
}

void ScriptedRun::sendMouse(QWindow* window, QEvent::Type type, const QPointF& at, Qt::MouseButton button,
                            Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, at, window->mapToGlobal(at.toPoint()), button, buttons, Qt::NoModifier);
    QGuiApplication::sendEvent(window, &event);
}

void ScriptedRun::setOn(const char* name, const char* property, const QVariant& value)
{
    m_dialog.root()->findChild<QObject*>(QLatin1String(name))->setProperty(property, value);
}

template<typename... Arguments>
void ScriptedRun::invoke(const char* name, const char* method, Arguments... arguments)
{
    QMetaObject::invokeMethod(m_dialog.root()->findChild<QObject*>(QLatin1String(name)), method, arguments...);
}

void ScriptedRun::saveScreenshot()
{
    // grabWindow() gives nothing with the software backend offscreen; an item grab does.
    auto* root = qobject_cast<QQuickItem*>(m_dialog.root());
    m_grab = root ? root->grabToImage() : nullptr;
    if (!m_grab) {
        qWarning() << "Could not grab the dialog for a screenshot";
        return;
    }
    connect(m_grab.data(), &QQuickItemGrabResult::ready, this, [this] {
        m_screenshotSaved = m_grab->image().save(m_screenshotPath);
        if (!m_screenshotSaved)
            qWarning() << "Could not save a screenshot to" << m_screenshotPath;
    });
}
