#include "benchmain.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <iomanip>
#include <map>
#include <string>

namespace {

const std::string oursSuffix = "/ours";
const std::string baselineSuffix = "/qt";

// The console report, then a table of ours / baseline for every pair of runs.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::ostream& out = GetOutputStream();
        out << "\nratio ours / plain Qt\n";
        for (const auto& [name, ours] : m_times) {
            if (!endsWith(name, oursSuffix))
                continue;
            const std::string pair = name.substr(0, name.size() - oursSuffix.size());
            const auto baseline = m_times.find(pair + baselineSuffix);
            if (baseline == m_times.end() || baseline->second <= 0)
                continue;
            out << std::left << std::setw(40) << pair << std::right << std::fixed << std::setprecision(2)
                << std::setw(10) << ours / baseline->second << "\n";
        }
    }

private:
    static bool endsWith(const std::string& text, const std::string& suffix)
    {
        return text.size() >= suffix.size() && text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
    }

    std::map<std::string, double> m_times;
};

// Our failure paths log by design; the lines would only drown the report.
void discardMessages(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

std::size_t dbr::bench::heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Offscreen there is no OpenGL for windows that get shown.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(discardMessages);
    QLoggingCategory::setFilterRules(QStringLiteral("arvela.qt.dlgconv.*.debug=false"));

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    dbr::bench::registerBenchmarks();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
