#include "scriptedrun.h"

#include "sampledialog.h"

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
        [this] {
            setOn("plotter", "currentIndex", 1);
            invoke("plotter", "activated", Q_ARG(int, 1));
        },
        [this] { setOn("paper", "editText", QStringLiteral("A2")); },
        [this] { setOn("style", "currentIndex", 1); },
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

void ScriptedRun::click(const char* name)
{
    clickItem(m_dialog.root()->findChild<QQuickItem*>(QLatin1String(name)), name);
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

void ScriptedRun::clickItem(QQuickItem* item, const char* name)
{
    if (!item || !item->window()) {
        qWarning() << "The script found no item" << name;
        return;
    }
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    const QPoint global = item->window()->mapToGlobal(centre.toPoint());
    QMouseEvent press(QEvent::MouseButtonPress, centre, centre, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QGuiApplication::sendEvent(item->window(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, centre, centre, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QGuiApplication::sendEvent(item->window(), &release);
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
