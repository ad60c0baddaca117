// Comparison of two full images of the fullest DUT beside reading both, and its table: what an event of
// scrolling, sorting and filtering costs with 100,000 differences and more, painting included.
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>
#include <QWheelEvent>

#include "Controller/calibration/CalDifferences.h"
#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Operations/calibration/MultiRatPathLossV7.h"
#include "Operations/capability/TargetCapability.h"
#include "Simulator/VondSim.h"
#include "View/compare/CompareWindow.h"
#include "bench/BenchMain.h"
#include "bench/EventClock.h"

namespace {

using Apt = CMultiRatAptProfileV7;
using PathLoss = CMultiRatPathLossV7;

constexpr std::size_t kManyDifferences = 100000;

template <typename Item>
SCalImage ReadImage()
{
    Item item(ERadioKind::Nr);
    if (item.UploadFromFlash() != 0)
        qFatal("no image: %s", qPrintable(item.GetErrorMessage()));
    return item.Image();
}

// Every byte differs, so that every value does.
SCalImage OtherImage(SCalImage image)
{
    for (SCalImageRecord &record : image.records) {
        for (uint8_t &byte : record.bytes)
            byte = static_cast<uint8_t>(byte ^ 0x11);
    }
    return image;
}

template <typename Item>
void ReadBoth(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(ReadImage<Item>());
        benchmark::DoNotOptimize(ReadImage<Item>());
        state.PauseTiming();
        VondSim_ClearJournal();
        state.ResumeTiming();
    }
}

// With the counts that a page shows. isSame: of two images that are alike.
template <typename Item, bool isSame>
void Compare(benchmark::State &state)
{
    const SCalImage left = ReadImage<Item>();
    const SCalImage right = isSame ? left : OtherImage(left);
    int count = 0;
    for (auto _ : state) {
        state.PauseTiming();
        SCalImage one = left;
        SCalImage other = right;
        state.ResumeTiming();
        count = MakeCalDifferences(CCalComparison(std::move(one), std::move(other)))->Count();
    }
    state.SetLabel(std::to_string(count) + " differences");
}

// Records of the images until there are that many differences.
CalDifferences ManyDifferences(std::size_t most)
{
    const SCalImage all = ReadImage<PathLoss>();
    SCalImage left;
    for (const SCalImageRecord &record : all.records) {
        left.records.push_back(record);
        CCalComparison comparison(left, OtherImage(left));
        if (comparison.Count() >= most)
            return MakeCalDifferences(std::move(comparison));
    }
    qFatal("the DUT has too few values");
}

// The window with its table, and how long an event with the painting behind it takes.
class CTable
{
public:
    CTable() : m_window(QStringLiteral("Bench"), &m_tool)
    {
        static const CalDifferences differences = ManyDifferences(kManyDifferences);
        m_window.Show({.result = {}, .differences = differences});
        m_window.show();
        m_table = m_window.findChild<QTableView *>(QStringLiteral("m_differences"));
        QCoreApplication::processEvents();
        m_window.repaint();
    }

    QTableView &Table() { return *m_table; }
    CCompareWindow &Window() { return m_window; }
    double Seconds(const std::function<void()> &act)
    {
        const double start = ThreadSeconds();
        act();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return ThreadSeconds() - start;
    }
    void Key(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(m_table, &press);
    }
    void Wheel(int notches)
    {
        const QPointF place(50, 50);
        QWheelEvent wheel(place, m_table->viewport()->mapToGlobal(place.toPoint()), {},
                          {0, 120 * notches}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(m_table->viewport(), &wheel);
    }

private:
    QWidget m_tool;
    CCompareWindow m_window;
    QTableView *m_table = nullptr;
};

// The longest of many events, as one iteration; the middle of several such runs.
void Report(benchmark::State &state, const std::function<double(CTable &)> &longest)
{
    constexpr int kRuns = 7;
    CTable table;
    longest(table);
    std::vector<double> seconds(kRuns);
    for (auto _ : state) {
        for (double &each : seconds)
            each = longest(table);
        std::sort(seconds.begin(), seconds.end());
        state.SetIterationTime(seconds[kRuns / 2]);
    }
    state.SetLabel(std::to_string(table.Table().model()->rowCount()) + " rows");
}

void ScrollByWheel(benchmark::State &state)
{
    Report(state, [](CTable &table) {
        double longest = 0;
        for (int i = 0; i < 100; ++i)
            longest = std::max(longest, table.Seconds([&] { table.Wheel(i < 60 ? -3 : 2); }));
        return longest;
    });
}

void ScrollByKeys(benchmark::State &state)
{
    Report(state, [](CTable &table) {
        double longest = 0;
        for (int i = 0; i < 60; ++i)
            longest = std::max(longest, table.Seconds([&] { table.Key(Qt::Key_PageDown); }));
        return longest;
    });
}

void ScrollByBar(benchmark::State &state)
{
    Report(state, [](CTable &table) {
        QScrollBar *bar = table.Table().verticalScrollBar();
        double longest = 0;
        for (int i = 0; i <= 60; ++i)
            longest =
                std::max(longest, table.Seconds([&] { bar->setValue(bar->maximum() / 60 * i); }));
        return longest;
    });
}

void Sort(benchmark::State &state)
{
    Report(state, [](CTable &table) {
        return table.Seconds([&] {
            table.Table().sortByColumn(CDifferenceModel::eDifference, Qt::DescendingOrder);
        });
    });
}

void Filter(benchmark::State &state)
{
    Report(state, [](CTable &table) {
        auto *fields = table.Window().findChild<QComboBox *>(QStringLiteral("m_field"));
        const double on = table.Seconds([&] { fields->setCurrentIndex(1); });
        return std::max(on, table.Seconds([&] { fields->setCurrentIndex(0); }));
    });
}

BENCHMARK_TEMPLATE(ReadBoth, Apt)->Name("ReadBoth/Apt")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(ReadBoth, PathLoss)->Name("ReadBoth/PathLoss")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Compare, Apt, true)->Name("CompareSame/Apt")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Compare, Apt, false)->Name("CompareOther/Apt")->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Compare, PathLoss, true)
    ->Name("CompareSame/PathLoss")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Compare, PathLoss, false)
    ->Name("CompareOther/PathLoss")
    ->Unit(benchmark::kMicrosecond);

#define TABLE_BENCH(name)                                                                          \
    BENCHMARK(name)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond)
TABLE_BENCH(ScrollByWheel);
TABLE_BENCH(ScrollByKeys);
TABLE_BENCH(ScrollByBar);
TABLE_BENCH(Sort);
TABLE_BENCH(Filter);

constexpr SRatio kRatios[] = {
    {"CompareSame/Apt", "ReadBoth/Apt", 3},
    {"CompareOther/Apt", "ReadBoth/Apt", 3},
    {"CompareSame/PathLoss", "ReadBoth/PathLoss", 3},
    {"CompareOther/PathLoss", "ReadBoth/PathLoss", 3},
    {"ScrollByWheel", nullptr, 16},
    {"ScrollByKeys", nullptr, 16},
    {"ScrollByBar", nullptr, 16},
    {"Sort", nullptr, 0},
    {"Filter", nullptr, 0},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    QApplication application(argc, argv);
    VondSim_SetProfile("largest");
    CTargetCapability::Reset();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
