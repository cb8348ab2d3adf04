#include "commandsample.h"

#include "markcommand.h"
#include "scriptplayer.h"

#include <quickhost/quickhost.h>

#include <QEventLoop>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
#include <QTextStream>

namespace {

// The root of the context dialog attached now, if any.
QQuickItem* contextDialogRoot(dbr::quickhost::QuickHost& host)
{
    const auto& attached = host.guiController().attachedDialogs();
    return attached.empty() ? nullptr : qobject_cast<QQuickItem*>(attached.back()->root());
}

std::vector<ScriptPlayer::Step> commandSteps(ScriptPlayer& commandLine, ScriptPlayer& panel,
                                             dbr::quickhost::QuickHost& host, QEventLoop& loop)
{
    const auto enter = [&commandLine](const char* text) {
        commandLine.typeInto("commandInput", QString::fromLatin1(text));
        commandLine.pressKey("commandInput", Qt::Key_Return);
    };
    return {
        [enter] { enter("MARK"); },
        [&panel] { panel.click("circle"); },
        [enter] { enter("140,90"); },
        [&panel] { panel.click("square"); },
        [enter] { enter("190,200"); },
        [&panel] { panel.click("cross"); },
        // A point picked in the drawing.
        [&commandLine] { commandLine.click("drawingArea"); },
        [&panel] { panel.click("cross"); },
        [&commandLine, &host] { commandLine.saveScreenshot({contextDialogRoot(host)}); },
        [enter] { enter("380,110"); },
        [&panel] { panel.click("closeButton"); },
        [enter] { enter("MARK"); },
        [&panel] { panel.click("circle"); },
        [enter] { enter("nowhere"); },
        [enter] { enter("420,200"); },
        [&panel] { panel.click("done"); },
        [&loop] { loop.quit(); },
    };
}

} // namespace

int CommandSample::run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out)
{
    MarkDrawing drawing;
    MarkCommand command(host.commandLine(), host.application(), drawing);

    QQuickView window(&host.engine(), nullptr);
    window.rootContext()->setContextProperty(QStringLiteral("commandLine"), &host.commandLine());
    window.rootContext()->setContextProperty(QStringLiteral("drawing"), &drawing);
    window.setSource(QUrl(QStringLiteral("qrc:/gallery/CommandWindow.qml")));
    window.setTitle(QStringLiteral("Drawing"));
    window.setPosition(40, 40);
    host.guiController().setContextDialogAnchor(&window);

    QEventLoop loop;
    ScriptPlayer commandLine([&window] { return window.rootObject(); }, options.screenshotPath);
    ScriptPlayer panel([&host] { return contextDialogRoot(host); }, QString());
    commandLine.setSteps(commandSteps(commandLine, panel, host, loop));
    QObject::connect(&window, &QWindow::visibleChanged, &loop, [&loop](bool visible) {
        if (!visible)
            loop.quit();
    });
    window.show();
    if (options.scripted)
        commandLine.start();
    loop.exec();

    out << "The command line received:\n";
    for (const QString& line : host.commandLine().transcript())
        out << "  " << line << '\n';
    out << "Command code saw:\n";
    for (const QString& line : qAsConst(command.seen))
        out << "  " << line << '\n';
    out << "Marks: " << drawing.marks().size() << '\n';
    if (options.scripted && commandLine.screenshotSaved())
        out << "Screenshot: " << options.screenshotPath << '\n';
    const bool ended = !host.commandLine().isRunning() && host.guiController().attachedDialogs().empty();
    return options.scripted && (!ended || drawing.marks().size() != 5 || !commandLine.screenshotSaved()) ? 1 : 0;
}
