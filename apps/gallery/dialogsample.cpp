#include "dialogsample.h"

#include <dlgbridge/hosting/qwxdialog.h>

#include <QTextStream>

#include <wx/defs.h>

int runDialogSample(dbr::qwxDialog& dialog, const QStringList& seen, const SampleSteps& steps,
                    const SampleOptions& options, QTextStream& out, const std::function<void(QTextStream&)>& results)
{
    ScriptPlayer script([&dialog] { return dialog.root(); }, options.screenshotPath);
    script.setSteps(steps(script));
    if (options.scripted)
        script.start();
    const int code = dbr::ShowModal(&dialog);

    out << "Dialog code saw:\n";
    for (const QString& line : seen)
        out << "  " << line << '\n';
    results(out);
    out << "ShowModal returned " << code << (code == wxID_OK ? " (wxID_OK)" : "") << '\n';
    if (options.scripted && script.screenshotSaved())
        out << "Screenshot: " << options.screenshotPath << '\n';
    return options.scripted && (code != wxID_OK || !script.screenshotSaved()) ? 1 : 0;
}
