// One report fetch of the RSRP Normal Mode page, 4x4, from the timer's tick to ten new rows on the
// painted table, with 100, 1,000 and 10,000 rows shown already; the share of the GUI thread in it;
// beside them the document's text there and back.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>

#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "bench/BenchMain.h"
#include "bench/RunningPage.h"

namespace {

double Seconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

// What a person waits for: everything between the tick and the painted rows.
void Fetch(benchmark::State &state)
{
    CRunningPage page(static_cast<int>(state.range(0)));
    const int before = page.Rows();
    for (auto _ : state) {
        page.Tick();
        page.TakeAnswer();
    }
    if (page.Rows() != before + kRowsAFetch * static_cast<int>(state.iterations()))
        state.SkipWithError("rows are missing");
}
BENCHMARK(Fetch)->Arg(100)->Arg(1000)->Arg(10000)->Iterations(25)->Unit(benchmark::kMillisecond);

// What the window stands still for.
void FetchOnGuiThread(benchmark::State &state)
{
    CRunningPage page(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        page.Tick();
        double busy = Seconds(timer);
        page.WaitForTarget();
        timer.start();
        page.TakeAnswer();
        busy += Seconds(timer);
        state.SetIterationTime(busy);
    }
}
BENCHMARK(FetchOnGuiThread)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(25)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The floor: the document's text is read and written once on each side.
void DocumentText(benchmark::State &state)
{
    const CRunningPage page(static_cast<int>(state.range(0)));
    const std::string text = page.DocumentText();
    for (auto _ : state)
        benchmark::DoNotOptimize(ModelToText(ModelFromText(text)));
    state.SetLabel(std::to_string(text.size() / 1000) + " kB");
}
BENCHMARK(DocumentText)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

constexpr SRatio kRatios[] = {
    {"FetchOnGuiThread/100", "DocumentText/100", 0},
    {"FetchOnGuiThread/1000", "DocumentText/1000", 0},
    {"FetchOnGuiThread/10000", "DocumentText/10000", 0},
    {"Fetch/10000", "DocumentText/10000", 0},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    QApplication application(argc, argv);
    RegisterOperationResultTypes();
    InitModelResources();
    VondSim_SetProfile("handset");
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
