// What the panels of the bench host cost a busy DUT: 10,000 calls of another thread with all of them in
// sight beside the same calls without. And the longest event of the door panel while it shows 100,000
// calls, filters, chooses, copies and saves them.
#include <atomic>
#include <memory>
#include <thread>

#include <benchmark/benchmark.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "Host/SimulatedDut.h"
#include "Host/door/DoorPanel.h"
#include "Host/dut/DutPanel.h"
#include "Host/dut/FaultPanel.h"
#include "Simulator/VondSim.h"
#include "Vond/VondCore.h"
#include "bench/BenchMain.h"
#include "bench/EventClock.h"
#include "tests/common/GoodCommands.h"

namespace {

constexpr int kBusyCalls = 10000;
constexpr int kManyCalls = 100000;

CTimedApplication &App()
{
    return *static_cast<CTimedApplication *>(QCoreApplication::instance());
}

CSimulatedDut &Dut()
{
    static CSimulatedDut dut;
    return dut;
}

// Another thread calls, as the tool's does; this one handles events.
void CallBusily()
{
    std::atomic<bool> isDone = false;
    std::thread caller([&] {
        const SMMRssiCmdV7 command = RssiCommand();
        SMMRssiCnfV7 answer = {};
        for (int i = 0; i < kBusyCalls; ++i)
            benchmark::DoNotOptimize(VOND_MMRf_RssiV7_r(1, 500, &command, &answer));
        isDone = true;
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection);
    });
    while (!isDone)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    caller.join();
}

void Busy(benchmark::State &state)
{
    VondSim_Reset();
    for (auto _ : state)
        CallBusily();
}

void BusyWithPanels(benchmark::State &state)
{
    VondSim_Reset();
    CDutPanel dut(Dut());
    CFaultPanel faults(Dut());
    CDoorPanel door(Dut());
    for (QWidget *panel : std::initializer_list<QWidget *>{&dut, &faults, &door})
        panel->show();
    for (auto _ : state)
        CallBusily();
}

void BusyWithDoorPanel(benchmark::State &state)
{
    VondSim_Reset();
    CDoorPanel door(Dut());
    door.show();
    for (auto _ : state)
        CallBusily();
}

template <class Condition>
void Wait(const Condition &condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// The user's hands on a long table.
void UseLongTable(CDoorPanel &panel, const QString &file)
{
    auto &calls = *panel.findChild<QTableView *>("m_calls");
    auto &function = *panel.findChild<QLineEdit *>("m_function");
    auto &failedOnly = *panel.findChild<QCheckBox *>("m_failedOnly");
    auto &save = *panel.findChild<QPushButton *>("m_save");
    QTest::keyClicks(&function, "rssi");
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&function, Qt::Key_Backspace);
    QTest::keyClick(&failedOnly, Qt::Key_Space);
    QTest::keyClick(&failedOnly, Qt::Key_Space);
    QTest::keyClick(&calls, Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&calls, Qt::Key_PageDown);
    QTest::keyClick(&calls, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&calls, Qt::Key_C, Qt::ControlModifier);
    QMetaObject::invokeMethod(
        &panel, [&] { panel.SaveAsTrace(file); }, Qt::QueuedConnection);
    Wait([&] { return !save.isEnabled(); });
    Wait([&] { return save.isEnabled(); });
}

void LongestEvent(benchmark::State &state)
{
    const QTemporaryDir folder;
    QTimer wakes;
    wakes.start(std::chrono::milliseconds(10));
    for (auto _ : state) {
        VondSim_Reset();
        CDoorPanel panel(Dut());
        panel.resize(760, 500);
        panel.show();
        auto &calls = *panel.findChild<QTableView *>("m_calls");
        App().BeginWatch();
        for (int i = 0; i < kManyCalls; ++i)
            VOND_NRf_GetChipIdName(40);
        Wait([&] { return calls.model()->rowCount() == kManyCalls; });
        UseLongTable(panel, folder.filePath("calls.jsonl"));
        state.SetIterationTime(App().Longest().seconds);
        state.SetLabel(App().Longest().receiver);
    }
}

constexpr SRatio kRatios[] = {
    {.measured = "BusyWithPanels", .floor = "Busy", .aim = 1.05},
    {.measured = "BusyWithDoorPanel", .floor = "Busy", .aim = 1.05},
    {.measured = "LongestEvent", .floor = nullptr, .aim = 16},
};

}  // namespace

BENCHMARK(Busy)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();
BENCHMARK(BusyWithPanels)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();
BENCHMARK(BusyWithDoorPanel)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();
BENCHMARK(LongestEvent)->Unit(benchmark::kMillisecond)->Iterations(1)->UseManualTime();

int main(int argc, char **argv)
{
    SetUpBench();
    CTimedApplication application(argc, argv);
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
