#pragma once

#include <quickhost/quickhost_export.h>

#include <QObject>
#include <QStringList>

#include <ca/InputProcessor.h>

#include <functional>
#include <memory>

namespace dbr::quickhost {

class QuickCommandLinePrivate;

// What a running command asks at the command line. Typed text that is one of
// the options (or its global form with a leading "_") goes to onOption, other
// text to onInput, which refuses it by returning false; Enter on an empty line
// calls onEnter. Escape cancels the command: onCancel runs, then it ends.
struct CommandPrompt
{
    QString text;
    QStringList options;
    QString defaultOption;
    std::function<void(const QString& option)> onOption;
    std::function<bool(const QString& input)> onInput;
    std::function<void()> onEnter;
    std::function<void()> onCancel;
};

// The reference host's command line: it takes keystrokes and command words as
// the application's input processor, runs small registered commands and keeps
// the transcript a user would read. QML shows it through its properties and
// types into it with keyPressed().
class DLGBRIDGE_QUICKHOST_EXPORT QuickCommandLine : public QObject, public ca::InputProcessor
{
    Q_OBJECT
    Q_PROPERTY(QString prompt READ prompt NOTIFY promptChanged)
    Q_PROPERTY(QString input READ input NOTIFY inputChanged)
    Q_PROPERTY(QStringList transcript READ transcript NOTIFY transcriptChanged)

public:
    QuickCommandLine();
    ~QuickCommandLine() override;

    // A command starts when its name is entered at the idle prompt.
    void registerCommand(const QString& name, std::function<void()> start);
    // Asks for the next input of the running command.
    void setPrompt(CommandPrompt prompt);
    // The running command is done; the command line waits for the next one.
    void endCommand();
    bool isRunning() const;
    // Writes a line of the running command's output.
    void print(const QString& line);

    QString prompt() const;
    QString input() const;
    QStringList transcript() const;

    void onChar(wchar_t character) override;
    void onCommand(const OdString& word, EInputType type, int flags) override;

    // A key from the QML field: Enter, Escape and Backspace as such, others by their text.
    Q_INVOKABLE void keyPressed(int key, const QString& text);
    // Text entered at once, as a point picked in a drawing is.
    Q_INVOKABLE void enter(const QString& text);

Q_SIGNALS:
    void promptChanged();
    void inputChanged();
    void transcriptChanged();

private:
    // By value: the text is often the input, which submitting clears.
    void submit(QString text);
    void startCommand(const QString& name);
    void answerPrompt(const QString& text);
    void cancel();
    void setInput(const QString& input);

    std::unique_ptr<QuickCommandLinePrivate> const d;
};

} // namespace dbr::quickhost
