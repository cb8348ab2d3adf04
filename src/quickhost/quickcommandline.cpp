#include "quickcommandline.h"

#include <QHash>

#include <qut/qtconversions.h>

namespace dbr::quickhost {

namespace {

constexpr wchar_t enterKey = 13;
constexpr wchar_t escapeKey = 27;
constexpr wchar_t backspaceKey = 8;

const QString idlePrompt = QStringLiteral("Command");

// Words are entered in any case and in their global form, with a leading "_".
QString localWord(const QString& word)
{
    return (word.startsWith(QLatin1Char('_')) ? word.mid(1) : word).toUpper();
}

// The option a word names: the whole option, or the start of one only.
QString matchOption(const QStringList& options, const QString& word)
{
    const QString wanted = localWord(word);
    if (wanted.isEmpty())
        return QString();
    QStringList started;
    for (const QString& option : options) {
        if (option.toUpper() == wanted)
            return option;
        if (option.toUpper().startsWith(wanted))
            started << option;
    }
    return started.size() == 1 ? started.front() : QString();
}

} // namespace

class QuickCommandLinePrivate
{
public:
    QHash<QString, std::function<void()>> commands;
    bool running = false;
    CommandPrompt prompt;
    QString input;
    QStringList transcript;
};

QuickCommandLine::QuickCommandLine()
    : d(std::make_unique<QuickCommandLinePrivate>())
{}

QuickCommandLine::~QuickCommandLine() = default;

void QuickCommandLine::registerCommand(const QString& name, std::function<void()> start)
{
    d->commands.insert(name.toUpper(), std::move(start));
}

void QuickCommandLine::setPrompt(CommandPrompt prompt)
{
    d->prompt = std::move(prompt);
    Q_EMIT promptChanged();
}

void QuickCommandLine::endCommand()
{
    d->running = false;
    setPrompt({});
}

bool QuickCommandLine::isRunning() const
{
    return d->running;
}

void QuickCommandLine::print(const QString& line)
{
    d->transcript << line;
    Q_EMIT transcriptChanged();
}

QString QuickCommandLine::prompt() const
{
    if (!d->running)
        return idlePrompt + QStringLiteral(": ");
    QString shown = d->prompt.text;
    if (!d->prompt.options.isEmpty())
        shown += QStringLiteral(" [%1]").arg(d->prompt.options.join(QLatin1Char('/')));
    if (!d->prompt.defaultOption.isEmpty())
        shown += QStringLiteral(" <%1>").arg(d->prompt.defaultOption);
    return shown + QStringLiteral(": ");
}

QString QuickCommandLine::input() const
{
    return d->input;
}

QStringList QuickCommandLine::transcript() const
{
    return d->transcript;
}

void QuickCommandLine::onChar(wchar_t character)
{
    switch (character) {
    case enterKey: submit(d->input); break;
    case escapeKey: cancel(); break;
    case backspaceKey: setInput(d->input.left(d->input.size() - 1)); break;
    default:
        if (QChar(character).isPrint())
            setInput(d->input + QChar(character));
    }
}

void QuickCommandLine::onCommand(const OdString& word, EInputType, int)
{
    enter(qut::toQt(word));
}

void QuickCommandLine::enter(const QString& text)
{
    // It replaces what was half typed, as a click on an option does.
    submit(text);
}

void QuickCommandLine::keyPressed(int key, const QString& text)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: onChar(enterKey); return;
    case Qt::Key_Escape: onChar(escapeKey); return;
    case Qt::Key_Backspace: onChar(backspaceKey); return;
    }
    for (const QChar character : text)
        onChar(character.unicode());
}

void QuickCommandLine::submit(QString text)
{
    print(prompt() + text);
    setInput(QString());
    if (d->running)
        answerPrompt(text.trimmed());
    else
        startCommand(text.trimmed());
}

void QuickCommandLine::startCommand(const QString& name)
{
    if (name.isEmpty())
        return;
    const auto command = d->commands.constFind(localWord(name));
    if (command == d->commands.constEnd()) {
        print(QStringLiteral("Unknown command \"%1\".").arg(name.toUpper()));
        return;
    }
    d->running = true;
    (*command)();
}

void QuickCommandLine::answerPrompt(const QString& text)
{
    // Copies: a handler may set the next prompt, which replaces the one it came from.
    if (text.isEmpty()) {
        if (const auto onEnter = d->prompt.onEnter)
            onEnter();
        return;
    }
    const QString option = matchOption(d->prompt.options, text);
    if (!option.isEmpty() && d->prompt.onOption) {
        const auto onOption = d->prompt.onOption;
        onOption(option);
        return;
    }
    const auto onInput = d->prompt.onInput;
    if (!onInput || !onInput(text))
        print(QStringLiteral("Invalid input."));
}

void QuickCommandLine::cancel()
{
    print(prompt() + QStringLiteral("*Cancel*"));
    setInput(QString());
    if (!d->running)
        return;
    const auto onCancel = d->prompt.onCancel;
    endCommand();
    if (onCancel)
        onCancel();
}

void QuickCommandLine::setInput(const QString& input)
{
    if (input == d->input)
        return;
    d->input = input;
    Q_EMIT inputChanged();
}

} // namespace dbr::quickhost
