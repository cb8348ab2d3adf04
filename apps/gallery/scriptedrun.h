#pragma once

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class QQuickItem;
class QQuickItemGrabResult;
class SampleDialog;

// Plays a user through the sample dialog's real QML items while it runs
// modally: preview, a refused OK, a check, a title, a plotter, a paper size,
// more copies, Apply with its message box, a screenshot, OK.
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
    void click(const char* name);
    void clickInMessageBox(int button);
    void clickItem(QQuickItem* item, const char* name);
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
