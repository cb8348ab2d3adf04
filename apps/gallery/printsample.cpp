#include "printsample.h"

#include "printdialog.h"
#include "scriptplayer.h"

#include <QTextStream>

#include <wx/defs.h>

#include <qut/qtconversions.h>

namespace {

std::vector<ScriptPlayer::Step> printSteps(ScriptPlayer& script, PrintDialog& dialog)
{
    return {
        [&dialog] { dialog.waitForExposed(); },
        [&script] { script.click("preview"); },
        [&script] { script.click("wxID_OK"); },
        [&script] { script.click("agree"); },
        [&script] {
            script.invoke("plotTitle", "insert", Q_ARG(int, 0), Q_ARG(QString, QStringLiteral("Ground floor")));
        },
        [&script] { script.click("plotTitle", Qt::RightButton); },
        [&script] { script.clickMenuEntry("titleMenu", "addScale"); },
        [&script] { script.clickTab("book", 1); },
        [&script] {
            script.setOn("plotter", "currentIndex", 1);
            script.invoke("plotter", "activated", Q_ARG(int, 1));
        },
        [&script] { script.setOn("paper", "editText", QStringLiteral("A2")); },
        [&script] { script.setOn("style", "currentIndex", 1); },
        [&script] { script.clickTab("book", 0); },
        [&script] { script.setOn("copies", "value", 3); },
        [&script] { script.click("wxID_APPLY"); },
        // Apply asks in a message box, whose own loop runs the next step.
        [&script] { script.clickInMessageBox(0); },
        [&script] { script.saveScreenshot(); },
        [&script] { script.click("wxID_OK"); },
    };
}

} // namespace

int PrintSample::run(dbr::quickhost::QuickHost&, const SampleOptions& options, QTextStream& out)
{
    PrintDialog dialog;
    dialog.load();
    ScriptPlayer script([&dialog] { return dialog.root(); }, options.screenshotPath);
    script.setSteps(printSteps(script, dialog));
    if (options.scripted)
        script.start();
    const int code = dbr::ShowModal(&dialog);

    out << "Dialog code saw:\n";
    for (const QString& line : dialog.seen)
        out << "  " << line << '\n';
    out << "Title: " << qut::toQt(dialog.title) << ", plotter: " << qut::toQt(dialog.plotterPath())
        << ", paper: " << qut::toQt(dialog.paper) << '\n';
    out << "Copies: " << dialog.copies << ", layout checked: " << (dialog.checked ? "yes" : "no") << '\n';
    out << "ShowModal returned " << code << (code == wxID_OK ? " (wxID_OK)" : "") << '\n';
    if (options.scripted && script.screenshotSaved())
        out << "Screenshot: " << options.screenshotPath << '\n';
    return options.scripted && (code != wxID_OK || !script.screenshotSaved()) ? 1 : 0;
}
