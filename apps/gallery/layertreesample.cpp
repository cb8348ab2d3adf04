#include "layertreesample.h"

#include "layertreedialog.h"
#include "scriptplayer.h"

#include <QTextStream>

#include <wx/defs.h>

namespace {

std::vector<ScriptPlayer::Step> layerSteps(ScriptPlayer& script, LayerTreeDialog& dialog)
{
    const auto row = [&script](const char* text) { return script.rowShowing("layers", QString::fromLatin1(text)); };
    return {
        [&dialog] { dialog.waitForExposed(); },
        [&script, row] { script.clickItem(row("Walls"), "Walls"); },
        [&script, row] { script.clickItem(row("Doors"), "Doors", Qt::LeftButton, Qt::ControlModifier); },
        [&script, row] { script.hoverItem(row("Columns"), "Columns"); },
        // The view asks for a tool tip once the pointer has rested a while.
        [] {},
        [] {},
        [] {},
        [&script, row] { script.clickItem(row("Grid"), "Grid"); },
        [&script] { script.pressKey("layers", Qt::Key_F2); },
        [&script, row] { script.clickItem(row("Beams"), "Beams"); },
        [&script] { script.pressKey("layers", Qt::Key_F2); },
        [&script] {
            script.type(QStringLiteral("Steel beams"));
            script.pressKey(Qt::Key_Return);
        },
        [&script, row] { script.dragItem(row("Columns"), row("Architecture"), "Columns"); },
        [&script, row] { script.clickItem(row("Walls"), "Walls"); },
        [&script, row] { script.clickItem(row("Columns"), "Columns", Qt::LeftButton, Qt::ControlModifier); },
        [&script] { script.typeInto("filter", QStringLiteral("l")); },
        [&script] { script.saveScreenshot(); },
        [&script] { script.click("wxID_OK"); },
    };
}

} // namespace

int LayerTreeSample::run(dbr::quickhost::QuickHost&, const SampleOptions& options, QTextStream& out)
{
    LayerTreeDialog dialog;
    dialog.load();
    ScriptPlayer script([&dialog] { return dialog.root(); }, options.screenshotPath);
    script.setSteps(layerSteps(script, dialog));
    if (options.scripted)
        script.start();
    const int code = dbr::ShowModal(&dialog);

    out << "Dialog code saw:\n";
    for (const QString& line : qAsConst(dialog.seen))
        out << "  " << line << '\n';
    out << "Chosen layers: " << dialog.chosen.join(QStringLiteral(", ")) << '\n';
    out << "ShowModal returned " << code << (code == wxID_OK ? " (wxID_OK)" : "") << '\n';
    if (options.scripted && script.screenshotSaved())
        out << "Screenshot: " << options.screenshotPath << '\n';
    return options.scripted && (code != wxID_OK || !script.screenshotSaved()) ? 1 : 0;
}
