#include "layertreesample.h"

#include "dialogsample.h"
#include "layertreedialog.h"

#include <QTextStream>

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
    const auto steps = [&dialog](ScriptPlayer& script) { return layerSteps(script, dialog); };
    return runDialogSample(dialog, dialog.seen, steps, options, out, [&dialog](QTextStream& results) {
        results << "Chosen layers: " << dialog.chosen.join(QStringLiteral(", ")) << '\n';
    });
}
