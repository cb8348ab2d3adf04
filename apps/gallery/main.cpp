// The gallery: sample dialogs written as the application's dialog code is,
// hosted on Qt Quick windows. With a display a person uses them; without one
// (or with --offscreen) a script plays them and leaves a screenshot.
#include "gallerysample.h"
#include "samples.h"

#include <quickhost/quickhost.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTextStream>

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

const SampleEntry* findSample(const QString& name)
{
    for (const SampleEntry& entry : gallerySamples()) {
        if (name == QLatin1String(entry.name))
            return &entry;
    }
    return nullptr;
}

QString sampleList()
{
    QString list;
    for (const SampleEntry& entry : gallerySamples())
        list += QStringLiteral("  %1: %2\n").arg(QLatin1String(entry.name), QLatin1String(entry.summary));
    return list;
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
    parser.addOption({QStringLiteral("offscreen"), QStringLiteral("Play the sample by script, without a display.")});
    parser.addOption({QStringLiteral("screenshot"),
                      QStringLiteral("Where the scripted run saves its screenshot (by default gallery-NAME.png in "
                                     "the build folder)."),
                      QStringLiteral("file")});
    parser.addOption({QStringLiteral("sample"), QStringLiteral("Which sample to run:\n") + sampleList(),
                      QStringLiteral("name"), QLatin1String(gallerySamples().front().name)});
    parser.process(app);

    QTextStream out(stdout);
    const SampleEntry* entry = findSample(parser.value(QStringLiteral("sample")));
    if (!entry) {
        QTextStream(stderr) << "No sample is called " << parser.value(QStringLiteral("sample")) << "; there are:\n"
                            << sampleList();
        return 2;
    }
    QString screenshot = parser.value(QStringLiteral("screenshot"));
    if (screenshot.isEmpty())
        screenshot = QStringLiteral(GALLERY_SCREENSHOT_DIR "/gallery-%1.png").arg(QLatin1String(entry->name));
    dbr::quickhost::QuickHost host({QStringLiteral(GALLERY_QML_IMPORT_DIR)});
    return entry->make()->run(host, {scripted, screenshot}, out);
}
