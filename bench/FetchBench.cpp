// One report fetch of the RSRP Normal Mode page, 4x4, from the timer's tick to ten new rows on the
// painted table, with 100, 1,000 and 10,000 rows shown already; the share of the GUI thread in it;
// beside them the document's text there and back.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSpinBox>
#include <QTableWidget>
#include <QThreadPool>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"
#include "bench/BenchMain.h"

namespace {

constexpr int kRowsAFetch = kVondMaxReports;
constexpr char kMember[] = "cmdIf_request_group1_memberProperty_";

// The page with a test running on the simulated DUT; its own timer is out of the way.
class CRunningPage : public CNrRsrpNormalDockWidgetV7
{
public:
    explicit CRunningPage(int rows) : CNrRsrpNormalDockWidgetV7(nullptr)
    {
        resize(1000, 690);
        show();
        Wait([this] { return m_modelReady; });
        m_table = findChild<QTableWidget *>("cmdIf_response_group2_memberProperty_RSRP0");
        findChild<QComboBox *>(QString(kMember) + "mimoType")->setCurrentText("4x4");
        on_cmdIf_request_group1_memberProperty_mimoType_activated(1);
        findChild<QSpinBox *>(QString(kMember) + "measCnt")->setValue(kRowsAFetch);
        findChild<QSpinBox *>(QString(kMember) + "reportPeriod")->setValue(10000);
        bool isRunning = false;
        connect(this, &CAutoBindingDataModelDockWidget::Signal_UpdateStatus, this,
                [&](const QString &text) { isRunning = text == "Rsrp start..."; });
        on_m_start_clicked();
        Wait([&] { return isRunning; });
        disconnect(this, &CAutoBindingDataModelDockWidget::Signal_UpdateStatus, this, nullptr);
        Settle();
        Fill(rows);
    }
    ~CRunningPage() override
    {
        on_m_stop_clicked();
        Settle();
    }

    int Rows() const { return m_table->rowCount(); }
    std::string DocumentText() const { return ModelToText(m_dataModel); }
    // Sends the request and nothing else.
    void Tick() { Slot_RsrpRxTimerTimeout(); }
    // Takes the answer and shows it.
    void TakeAnswer()
    {
        const int before = Rows();
        Wait([&] { return Rows() > before; });
        Paint();
    }
    static void WaitForTarget() { QThreadPool::globalInstance()->waitForDone(); }

private:
    template <typename Condition>
    static void Wait(Condition condition)
    {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void Paint()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        repaint();
    }
    void Settle()
    {
        WaitForTarget();
        Paint();
    }
    // Rows as the answers of earlier fetches would have brought them, all in one answer.
    void Fill(int rows)
    {
        NRfTestResult_GetMixRxReportV7 report = {};
        report.reportCount = kRowsAFetch;
        for (int i = 0; i < kRowsAFetch; ++i)
            report.RSRP0[i] = report.RSRP1[i] = report.RSRP2[i] = report.RSRP3[i] =
                report.RSSI0[i] = report.RSSI1[i] = report.RSSI2[i] = report.RSSI3[i] = -11552;
        report.GoodBLK = 1234567;
        QJsonObject document = m_dataModel;
        for (int row = 0; row < rows; row += kRowsAFetch)
            CNrDataModelResponseBuilder().UpdateMixRxNormalResultV7(document, report, true);
        Tick();
        WaitForTarget();
        Slot_RsrpNormalFetchReportDone({}, ModelToText(document));
        Paint();
    }

    QTableWidget *m_table = nullptr;
};

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
