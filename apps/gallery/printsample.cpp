#include "printsample.h"

#include "dialogsample.h"
#include "printdialog.h"

#include <QTextStream>

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
    const auto steps = [&dialog](ScriptPlayer& script) { return printSteps(script, dialog); };
    return runDialogSample(dialog, dialog.seen, steps, options, out, [&dialog](QTextStream& results) {
        results << "Title: " << qut::toQt(dialog.title) << ", plotter: " << qut::toQt(dialog.plotterPath())
                << ", paper: " << qut::toQt(dialog.paper) << '\n';
        results << "Copies: " << dialog.copies << ", layout checked: " << (dialog.checked ? "yes" : "no") << '\n';
    });
}
