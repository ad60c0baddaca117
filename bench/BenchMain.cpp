#include "bench/BenchMain.h"

#include <cstdio>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

namespace {

class CRatioReporter : public benchmark::ConsoleReporter
{
public:
    CRatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (!run.error_occurred)
                m_seconds[Name(run)] = run.real_accumulated_time / run.iterations;
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void PrintRatios(const SRatio *ratios, int count) const
    {
        std::printf("\n%-40s %-40s %8s %6s\n", "measured", "against", "ratio", "aim");
        for (int i = 0; i < count; ++i) {
            const char *floorName = ratios[i].floor ? ratios[i].floor : "1 ms";
            const auto measured = m_seconds.find(ratios[i].measured);
            const auto floor = m_seconds.find(floorName);
            if (measured == m_seconds.end() || (ratios[i].floor && floor == m_seconds.end()))
                continue;
            const double unit = ratios[i].floor ? floor->second : 1e-3;
            std::printf("%-40s %-40s %8.2f", ratios[i].measured, floorName,
                        measured->second / unit);
            if (ratios[i].aim > 0)
                std::printf(" %6.1f", ratios[i].aim);
            std::printf("\n");
        }
    }

private:
    // Without the settings that the library writes behind a name ("/iterations:25").
    static std::string Name(const Run &run)
    {
        const std::string name = run.benchmark_name();
        return name.substr(0, name.find("/iterations:"));
    }

    std::map<std::string, double> m_seconds;  // by benchmark, of one iteration
};

}  // namespace

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
