#pragma once

#include <QEvent>
#include <QList>
#include <QPoint>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class QQuickItem;
class QQuickItemGrabResult;
class QWindow;

// Plays a user through a sample's real QML items while it runs modally: one
// step after another, from the sample's own event loops. Items are found by
// object name under the root the sample gives; a step that finds nothing warns
// with "The script found no ..." and the run goes on.
class ScriptPlayer : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void()>;

    ScriptPlayer(std::function<QObject*()> root, QString screenshotPath);

    void setSteps(std::vector<Step> steps);
    // Starts the steps; they run from the sample's modal loop.
    void start();
    bool screenshotSaved() const { return m_screenshotSaved; }

    QQuickItem* item(const char* name) const;
    // The item a tab bar, a menu or a view gives for that index.
    QQuickItem* itemAt(const char* name, int index) const;

    void click(const char* name, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickItem(QQuickItem* item, const char* name, Qt::MouseButton button = Qt::LeftButton,
                   Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void doubleClickItem(QQuickItem* item, const char* name);
    // Presses on one item, moves over the other in a few steps and releases there.
    void dragItem(QQuickItem* from, QQuickItem* to, const char* name);
    // Gives the item the focus and types into it, one key event per character.
    void typeInto(const char* name, const QString& text);
    void pressKey(const char* name, Qt::Key key);
    // Types into whatever has the focus now, such as an editor a view opened.
    void type(const QString& text);
    void pressKey(Qt::Key key);
    // The row of a list or tree view, or the cell of a table, that shows text.
    QQuickItem* rowShowing(const char* view, const QString& text) const;
    // Rests the pointer on the item.
    void hoverItem(QQuickItem* item, const char* name);
    void clickTab(const char* notebook, int page);
    void clickMenuEntry(const char* menu, const char* identifier);
    // Clicks a button of the message box shown on top, in its own modal loop.
    void clickInMessageBox(int button);
    // Clicks a row of the pop-up a combo opened, by the row's object name.
    void clickPopupRow(const char* row);
    // The item of that name in a dialog of the host shown in a window of its
    // own (the colour dialog, the line type loader), found by the dialog's root name.
    QQuickItem* itemInDialog(const char* dialog, const char* name) const;
    void clickInDialog(const char* dialog, const char* name);
    // Gives the item the focus and types into its own window.
    void typeInDialog(const char* dialog, const char* name, const QString& text);
    void setOn(const char* name, const char* property, const QVariant& value);
    template<typename... Arguments>
    void invoke(const char* name, const char* method, Arguments... arguments)
    {
        QMetaObject::invokeMethod(object(name), method, arguments...);
    }
    // Grabs the root item, with the windows of the given items where they stand
    // beside it; the file is written when every grab is ready.
    void saveScreenshot(const QList<QQuickItem*>& besides = {});
    // Grabs the root's whole window, with what pop-ups it shows over the root.
    void saveWindowScreenshot();

private:
    void next();
    // Whether the dialog's window takes events yet; if not, the step runs again at the next tick.
    bool dialogReady(const QQuickItem* item);
    void composeScreenshot();
    QObject* object(const char* name) const;
    QQuickItem* focusOn(const char* name) const;
    void sendKey(int key, const QString& text);
    static void sendKey(QWindow* window, int key, const QString& text);
    void grab(const QList<QQuickItem*>& items);
    static void sendMouse(QWindow* window, QEvent::Type type, const QPointF& at, Qt::MouseButton button,
                          Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    const std::function<QObject*()> m_root;
    const QString m_screenshotPath;
    std::vector<Step> m_steps;
    size_t m_next = 0;
    int m_retries = 0;
    struct Grab
    {
        QSharedPointer<QQuickItemGrabResult> result;
        QPoint at;
    };
    std::vector<Grab> m_grabs;
    bool m_screenshotSaved = false;
};
