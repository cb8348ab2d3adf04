#include "drawinglistsample.h"

#include "dialogsample.h"
#include "drawinglistdialog.h"

#include <QQuickItem>
#include <QTextStream>

namespace {

// The check box of a check list's row.
QQuickItem* checkBoxOf(QQuickItem* row)
{
    if (!row)
        return nullptr;
    const auto parts = row->findChildren<QQuickItem*>();
    const auto box = std::find_if(parts.begin(), parts.end(),
                                  [](const QQuickItem* part) { return part->inherits("QQuickCheckBox"); });
    return box == parts.end() ? nullptr : *box;
}

std::vector<ScriptPlayer::Step> drawingSteps(ScriptPlayer& script, DrawingListDialog& dialog)
{
    const auto cell = [&script](const char* text) {
        return script.rowShowing("drawings", QString::fromUtf8(text));
    };
    const auto option = [&script](const char* text) {
        return checkBoxOf(script.rowShowing("options", QString::fromLatin1(text)));
    };
    return {
        [&dialog] { dialog.waitForExposed(); },
        [&script, cell] { script.clickItem(cell("Size"), "Size heading"); },
        [&script, cell] { script.clickItem(cell("Roof plan.dwg"), "Roof plan"); },
        [&script, cell] { script.clickItem(cell("Site plan.dwg"), "Site plan", Qt::LeftButton, Qt::ControlModifier); },
        [&script] { script.typeInto("search", QStringLiteral("plan")); },
        [&script, cell] { script.clickItem(cell("Site plan.dwg"), "Site plan", Qt::RightButton); },
        [&script, cell] { script.doubleClickItem(cell("Roof plan.dwg"), "Roof plan"); },
        [&script, cell] { script.doubleClickItem(cell("Site"), "Site layout"); },
        [&script] {
            script.type(QStringLiteral("Site, Key plan"));
            script.pressKey(Qt::Key_Return);
        },
        [&script, option] { script.clickItem(option("Audit on open"), "Audit on open"); },
        [&script, option] { script.clickItem(option("Open read-only"), "Open read-only"); },
        [&script, option] { script.clickItem(option("Audit on open"), "Audit on open"); },
        [&script, cell] { script.clickItem(cell("Roof plan.dwg"), "Roof plan", Qt::LeftButton, Qt::ControlModifier); },
        [&script] { script.saveScreenshot(); },
        [&script] { script.click("wxID_OK"); },
    };
}

} // namespace

int DrawingListSample::run(dbr::quickhost::QuickHost&, const SampleOptions& options, QTextStream& out)
{
    DrawingListDialog dialog;
    dialog.load();
    const auto steps = [&dialog](ScriptPlayer& script) { return drawingSteps(script, dialog); };
    return runDialogSample(dialog, dialog.seen, steps, options, out, [&dialog](QTextStream& results) {
        results << "Chosen: " << dialog.chosen.join(QStringLiteral(", ")) << '\n';
    });
}
