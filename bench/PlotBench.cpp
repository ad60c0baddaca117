// A plot of 100,000 reports: what an event costs that shows ten more, goes a tenth of the view on, or
// counts the figures. Each is measured with its painting.
#include <cmath>

#include <dlfcn.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QWidget>

#include "View/plots/PlotInterface.h"
#include "bench/BenchMain.h"

namespace {

constexpr int kCurves = 9;  // 4 antennas of RSRP and RSSI, and BLER
constexpr int kNewReports = 10;

class CReports
{
public:
    explicit CReports(int count)
    {
        void *library = dlopen(PLOT_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        m_plot = reinterpret_cast<MakePlot>(dlsym(library, kPlotFunction))(kPlotVersion, nullptr);
        m_plot->SetShape({.x = "Time (s)", .left = "RSRP, RSSI (dBm)", .right = "BLER (%)"});
        m_plot->Widget()->resize(1200, 700);
        m_plot->Widget()->show();
        std::vector<SPlotCurve> curves;
        for (int c = 0; c < kCurves; ++c) {
            m_y.push_back(std::make_shared<std::vector<float>>());
            curves.push_back({.name = QString::number(c),
                              .color = c,
                              .hasPoints = true,
                              .isOnRight = c == kCurves - 1,
                              .x = m_x,
                              .y = m_y.back()});
        }
        m_plot->SetCurves(curves);
        Add(count);
        Show();
    }
    ~CReports() { delete m_plot; }

    void Add(int count)
    {
        for (int i = 0; i < count; ++i) {
            const int at = static_cast<int>(m_x->size());
            m_x->push_back(at * 0.03);
            for (int c = 0; c < kCurves; ++c)
                m_y[static_cast<size_t>(c)]->push_back(static_cast<float>(
                    -60 - 5 * c + std::sin(at * 0.001 + c) + (at * 7919 + c * 31) % 97 * 0.01));
        }
    }
    void Show()
    {
        m_plot->ShowData();
        m_plot->Widget()->repaint();
        QCoreApplication::processEvents();
    }
    IPlot &Plot() { return *m_plot; }

private:
    IPlot *m_plot = nullptr;
    std::shared_ptr<std::vector<double>> m_x = std::make_shared<std::vector<double>>();
    std::vector<std::shared_ptr<std::vector<float>>> m_y;
};

void ShowTenMore(benchmark::State &state)
{
    CReports reports(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        reports.Add(kNewReports);
        reports.Show();
    }
}
BENCHMARK(ShowTenMore)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void GoOn(benchmark::State &state)
{
    CReports reports(static_cast<int>(state.range(0)));
    reports.Plot().Zoom(0.5);
    double part = 0.1;
    for (auto _ : state) {
        reports.Plot().Pan(part);
        reports.Plot().Widget()->repaint();
        QCoreApplication::processEvents();
        part = -part;
    }
}
BENCHMARK(GoOn)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void CountFigures(benchmark::State &state)
{
    CReports reports(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        for (int c = 0; c < kCurves; ++c)
            benchmark::DoNotOptimize(reports.Plot().FiguresInView(c));
    }
}
BENCHMARK(CountFigures)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    const QApplication app(argc, argv);
    constexpr SRatio kRatios[] = {
        {"ShowTenMore/100000", nullptr, 16},
        {"GoOn/100000", nullptr, 16},
        {"CountFigures/100000", nullptr, 16},
    };
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
