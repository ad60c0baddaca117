#include "bench/BenchMain.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

#include <QLoggingCategory>

namespace {

class CRatioReporter : public benchmark::ConsoleReporter
{
public:
    CRatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (!run.error_occurred)
                m_seconds[Name(run)] =
                    run.real_accumulated_time / static_cast<double>(run.iterations);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void PrintRatios(const SRatio *ratios, int count) const
    {
        const char *fileName = std::getenv("QUORLIN_RATIOS");
        std::ofstream file(fileName ? fileName : "");
        std::printf("\n%-40s %-40s %8s %6s\n", "measured", "against", "ratio", "aim");
        for (int i = 0; i < count; ++i) {
            const SRatio &ratio = ratios[i];
            const char *floorName = ratio.floor ? ratio.floor : "1 ms";
            const auto measured = m_seconds.find(ratio.measured);
            const auto floor = m_seconds.find(floorName);
            if (measured == m_seconds.end() || (ratio.floor && floor == m_seconds.end()))
                continue;
            const double unit = ratio.floor ? floor->second : 1e-3;
            const std::string aim = ratio.aim > 0 ? Text("%.1f", ratio.aim) : "";
            std::printf("%-40s %-40s %8.2f %6s\n", ratio.measured, floorName,
                        measured->second / unit, aim.c_str());
            file << ratio.measured << ',' << Text("%.3f", measured->second * 1e3) << ','
                 << floorName << ',' << Text("%.3f", unit * 1e3) << ','
                 << Text("%.2f", measured->second / unit) << ',' << aim << '\n';
        }
    }

private:
    // Without the settings that the library writes behind a name ("/iterations:25", "/manual_time").
    static std::string Name(const Run &run)
    {
        const std::string name = run.benchmark_name();
        return name.substr(0, std::min(name.find("/iterations:"), name.find("/manual_time")));
    }

    static std::string Text(const char *format, double number)
    {
        char text[32];
        std::snprintf(text, sizeof(text), format, number);
        return text;
    }

    std::map<std::string, double> m_seconds;  // by benchmark, of one iteration
};

}  // namespace

void SetUpBench()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("quorlin.*.debug=false\nquorlin.*.critical=false");
}

int RunBenchmarks(int argc, char **argv, const SRatio *ratios, int count)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios(ratios, count);
    benchmark::Shutdown();
    return 0;
}
