#pragma once

#include <QEvent>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class QQuickItem;
class QQuickItemGrabResult;
class QWindow;
class SampleDialog;

// Plays a user through the sample dialog's real QML items while it runs
// modally: preview, a refused OK, a check, a title and an entry of its context
// menu, the plotter page with a plotter, a paper size and a style, the drawing
// page with more copies, Apply with its message box, a screenshot, OK.
class ScriptedRun : public QObject
{
    Q_OBJECT

public:
    ScriptedRun(SampleDialog& dialog, QString screenshotPath);

    // Starts the steps; they run from the dialog's modal loop.
    void start();
    bool screenshotSaved() const { return m_screenshotSaved; }

private:
    void next();
    void click(const char* name, Qt::MouseButton button = Qt::LeftButton);
    void clickTab(const char* notebook, int page);
    void clickMenuEntry(const char* menu, const char* identifier);
    void clickInMessageBox(int button);
    void clickItem(QQuickItem* item, const char* name, Qt::MouseButton button = Qt::LeftButton);
    static void sendMouse(QWindow* window, QEvent::Type type, const QPointF& at, Qt::MouseButton button,
                          Qt::MouseButtons buttons);
    // The item a tab bar or a menu gives for that index.
    QQuickItem* itemAt(const char* name, int index) const;
    void setOn(const char* name, const char* property, const QVariant& value);
    template<typename... Arguments>
    void invoke(const char* name, const char* method, Arguments... arguments);
    void saveScreenshot();

    SampleDialog& m_dialog;
    const QString m_screenshotPath;
    std::vector<std::function<void()>> m_steps;
    size_t m_next = 0;
    QSharedPointer<QQuickItemGrabResult> m_grab;
    bool m_screenshotSaved = false;
};
