#include "bench/BenchMain.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

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
            if (!run.error_occurred && run.run_type == Run::RT_Iteration)
                m_seconds[Name(run)].push_back(run.real_accumulated_time /
                                               static_cast<double>(run.iterations));
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
            const double seconds = Median(measured->second);
            const double unit = ratio.floor ? Median(floor->second) : 1e-3;
            const std::string aim = ratio.aim > 0 ? Text("%.1f", ratio.aim) : "";
            std::printf("%-40s %-40s %8.2f %6s\n", ratio.measured, floorName, seconds / unit,
                        aim.c_str());
            file << ratio.measured << ',' << Text("%.3f", seconds * 1e3) << ',' << floorName << ','
                 << Text("%.3f", unit * 1e3) << ',' << Text("%.2f", seconds / unit) << ',' << aim
                 << '\n';
        }
    }

private:
    // Without the settings that the library writes behind a name ("/iterations:25", "/repeats:5").
    static std::string Name(const Run &run)
    {
        std::string name = run.run_name.function_name;
        if (!run.run_name.args.empty())
            name += '/' + run.run_name.args;
        return name;
    }

    static double Median(std::vector<double> values)
    {
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    static std::string Text(const char *format, double number)
    {
        char text[32];
        std::snprintf(text, sizeof(text), format, number);
        return text;
    }

    std::map<std::string, std::vector<double>> m_seconds;  // by benchmark, of one iteration
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
    const char *turns[] = {"--benchmark_repetitions=5",
                           "--benchmark_enable_random_interleaving=true",
                           "--benchmark_min_time=0.1"};
    std::vector<char *> arguments{argv[0]};
    for (const char *turn : turns)
        arguments.push_back(const_cast<char *>(turn));
    arguments.insert(arguments.end(), argv + 1, argv + argc);  // these come last and count
    int all = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&all, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(all, arguments.data()))
        return 1;
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios(ratios, count);
    benchmark::Shutdown();
    return 0;
}
