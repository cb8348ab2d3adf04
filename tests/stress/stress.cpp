// Random QML trees and random sequences of public calls over them, one seed at
// a time. The seed is printed before its run, so that the last one printed
// before a crash replays it: stress --seed N.
#include "randomqml.h"
#include "scenario.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QHash>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

struct Options
{
    std::uint32_t first = 1;
    int seeds = 20;
    int operations = 300;
    int timeout = 60;
    bool trace = false;
};

// A log line that shows a placeholder mark without its "%1" took an object name as its format.
bool garbled(const QString& message)
{
    const QLatin1String mark(dbr::stress::placeholderMark);
    for (int at = message.indexOf(mark); at >= 0; at = message.indexOf(mark, at + 1)) {
        const int next = at + mark.size();
        if (next >= message.size() || message.at(next) != QLatin1Char('%'))
            return true;
    }
    return false;
}

// The library's warnings are expected under misuse; a fatal message (a model
// tester's among them) or a garbled line ends the run.
void messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "stress: fatal: %s\n", qPrintable(message));
        std::abort();
    }
    if (garbled(message)) {
        std::fprintf(stderr, "stress: garbled log line: %s\n", qPrintable(message));
        std::abort();
    }
}

int positive(const QCommandLineParser& parser, const QString& option)
{
    bool ok = false;
    const int value = parser.value(option).toInt(&ok);
    if (!ok || value < 1) {
        std::fprintf(stderr, "stress: --%s wants a positive number\n", qPrintable(option));
        std::exit(2);
    }
    return value;
}

Options parse(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Random QML and random calls of the dialog bridge"));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("seed"), QStringLiteral("Replay this seed only."), QStringLiteral("N")},
        {QStringLiteral("first"), QStringLiteral("First seed of the run (1)."), QStringLiteral("N")},
        {QStringLiteral("seeds"), QStringLiteral("How many seeds (20)."), QStringLiteral("K")},
        {QStringLiteral("ops"), QStringLiteral("Operations per seed (300)."), QStringLiteral("M")},
        {QStringLiteral("timeout"), QStringLiteral("Seconds one seed may take (60)."), QStringLiteral("S")},
        {QStringLiteral("trace"), QStringLiteral("Print each operation before it runs.")},
    });
    parser.process(application);

    Options options;
    if (parser.isSet(QStringLiteral("first")))
        options.first = std::uint32_t(positive(parser, QStringLiteral("first")));
    if (parser.isSet(QStringLiteral("seeds")))
        options.seeds = positive(parser, QStringLiteral("seeds"));
    if (parser.isSet(QStringLiteral("seed"))) {
        options.first = std::uint32_t(positive(parser, QStringLiteral("seed")));
        options.seeds = 1;
    }
    if (parser.isSet(QStringLiteral("ops")))
        options.operations = positive(parser, QStringLiteral("ops"));
    if (parser.isSet(QStringLiteral("timeout")))
        options.timeout = positive(parser, QStringLiteral("timeout"));
    options.trace = parser.isSet(QStringLiteral("trace"));
    return options;
}

// A loop that never returns (a release build turns endless recursion into
// one) ends the run with its seed instead of waiting for CTest's timeout.
class Watchdog
{
public:
    explicit Watchdog(int seconds)
    {
        std::thread([this, seconds] { watch(seconds); }).detach();
    }

    void startSeed(std::uint32_t seed)
    {
        m_seed = seed;
        m_started = now();
    }

private:
    static long long now()
    {
        return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    }

    [[noreturn]] void watch(int seconds)
    {
        for (;;) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            if (now() - m_started > seconds) {
                std::fprintf(stderr, "stress: seed %u took more than %d s\n", m_seed.load(), seconds);
                std::abort();
            }
        }
    }

    std::atomic<std::uint32_t> m_seed{0};
    std::atomic<long long> m_started{now()};
};

// Run by hand it needs no environment, like under CTest.
void setHeadlessDefaults()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

} // namespace

int main(int argc, char** argv)
{
    // A fixed hash order, so that a seed runs the same in every process.
    qSetGlobalQHashSeed(0);
    setHeadlessDefaults();
    QGuiApplication application(argc, argv);
    const Options options = parse(application);
    qInstallMessageHandler(messageHandler);

    static Watchdog watchdog(options.timeout);
    for (std::uint32_t seed = options.first; seed < options.first + std::uint32_t(options.seeds); ++seed) {
        watchdog.startSeed(seed);
        std::fprintf(stderr, "stress: seed %u\n", seed);
        std::fflush(stderr);
        dbr::stress::runScenario(seed, options.operations, options.trace);
    }
    std::fprintf(stderr, "stress: %d seeds of %d operations passed\n", options.seeds, options.operations);
    return 0;
}
