// The gallery: a sample dialog written as the application's dialog code is,
// hosted on Qt Quick windows. With a display a person uses it; without one (or
// with --offscreen) a script plays it and leaves a screenshot.
#include "sampledialog.h"
#include "scriptedrun.h"

#include <quickhost/quickhost.h>

#include <qut/qtconversions.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTextStream>
#include <QUrl>

#include <wx/defs.h>

#include <cstdio>

namespace {

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

bool wantsOffscreen(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--offscreen") == 0)
            return true;
    }
    return !hasDisplay();
}

} // namespace

int main(int argc, char** argv)
{
    const bool scripted = wantsOffscreen(argc, argv);
    if (scripted) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }
    QApplication app(argc, argv);
    // Which wrapper each item got is for those who ask (QT_LOGGING_RULES).
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(QStringLiteral("arvela.qt.dlgconv.*.debug=false"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sample wx-style dialogs running over QML"));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("offscreen"), QStringLiteral("Play the dialog by script, without a display.")});
    parser.addOption({QStringLiteral("screenshot"), QStringLiteral("Where the scripted run saves its screenshot."),
                      QStringLiteral("file"), QStringLiteral(GALLERY_DEFAULT_SCREENSHOT)});
    parser.process(app);

    dbr::quickhost::QuickHost host({QStringLiteral(GALLERY_QML_IMPORT_DIR)});
    SampleDialog dialog;
    dbr::wut::doLoadDialog(&dialog, nullptr, QUrl(QStringLiteral("qrc:/gallery/SampleDialog.qml")),
                           dbr::Resizable, {}, nullptr);

    ScriptedRun script(dialog, parser.value(QStringLiteral("screenshot")));
    if (scripted)
        script.start();
    const int code = dbr::ShowModal(&dialog);

    QTextStream out(stdout);
    out << "Dialog code saw:\n";
    for (const QString& line : dialog.seen)
        out << "  " << line << '\n';
    out << "Title: " << qut::toQt(dialog.title) << ", plotter: " << qut::toQt(dialog.plotterPath())
        << ", paper: " << qut::toQt(dialog.paper) << '\n';
    out << "Copies: " << dialog.copies << ", layout checked: " << (dialog.checked ? "yes" : "no") << '\n';
    out << "ShowModal returned " << code << (code == wxID_OK ? " (wxID_OK)" : "") << '\n';
    if (scripted && script.screenshotSaved())
        out << "Screenshot: " << parser.value(QStringLiteral("screenshot")) << '\n';
    return scripted && (code != wxID_OK || !script.screenshotSaved()) ? 1 : 0;
}
