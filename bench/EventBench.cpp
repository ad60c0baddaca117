// The longest event that each request leaves on the GUI thread, painting apart, beside the painting
// of the page that it changes, on the DUT `largest`.
#include <algorithm>
#include <functional>
#include <vector>

#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QFileDialog>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "Model/ModelResources.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRssiDockWidgetV7.h"
#include "View/Rx/NrRxPathlossDockWidgetV7.h"
#include "View/Tx/NrAptProfileDockWidgetV7.h"
#include "View/Tx/NrPuschTxNormalDockWidgetV7.h"
#include "bench/BenchMain.h"
#include "bench/EventClock.h"
#include "bench/RunningPage.h"
#include "tests/common/CalProfile.h"

namespace {

CTimedApplication &App()
{
    return *static_cast<CTimedApplication *>(QCoreApplication::instance());
}

void Wait(const std::function<bool()> &condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void HandleEvents()
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// A page with its document, painted.
template <typename Page>
class CShown : public Page
{
public:
    CShown() : Page(nullptr)
    {
        VondSim_Reset();
        VondSim_SetProfileText(kLargestCalProfile);
        QObject::connect(this, &Page::Signal_UpdateStatus,
                         [this](const QString &text) { m_status = text; });
        this->resize(1000, 690);
        this->show();
        Wait([this] { return this->m_modelReady; });
        Settle();
    }
    ~CShown() override { HandleEvents(); }

    QComboBox *Selector(const char *name) const
    {
        return this->template findChild<QComboBox *>(name);
    }
    void Press(const char *button)
    {
        auto *found = this->template findChild<QPushButton *>(button);
        QMetaObject::invokeMethod(found, &QPushButton::click, Qt::QueuedConnection);
    }
    void Await(const char *status)
    {
        Wait([&] { return m_status == status; });
        m_status.clear();
        Settle();
    }
    void Run(const char *button, const char *status)
    {
        m_status.clear();
        Press(button);
        Await(status);
    }
    void Settle()
    {
        HandleEvents();
        this->repaint();
        HandleEvents();
    }

private:
    QString m_status;
};

constexpr int kRuns = 15;

// The middle of many runs, as one iteration: others' work on the machine lengthens some.
void Report(benchmark::State &state, const std::function<double()> &run)
{
    run();  // what the first one makes for all
    std::vector<double> seconds(kRuns);
    for (auto _ : state) {
        for (double &each : seconds)
            each = run();
        std::sort(seconds.begin(), seconds.end());
        state.SetIterationTime(seconds[kRuns / 2]);
    }
}

// request: one request, up to what it shows. The longest event's handler goes into the label.
void Measure(benchmark::State &state, const std::function<void()> &request)
{
    SLongestEvent longest;
    Report(state, [&] {
        App().BeginWatch();
        request();
        if (App().Longest().seconds > longest.seconds)
            longest = App().Longest();
        return App().Longest().seconds;
    });
    state.SetLabel(longest.receiver);
}

// The floor: the page into an image.
void MeasurePaint(benchmark::State &state, QWidget &page)
{
    QImage image(page.size(), QImage::Format_ARGB32_Premultiplied);
    Report(state, [&] {
        const double start = ThreadSeconds();
        page.render(&image);
        return ThreadSeconds() - start;
    });
}

// Chooses the other of the first two items with a key.
void Turn(QComboBox *selector)
{
    const int key = selector->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up;
    QCoreApplication::postEvent(selector, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    HandleEvents();
}

// Answers the next file dialog. The watch begins when it is gone.
void AnswerFileDialog(const QString &file)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, file] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QObject::connect(dialog, &QObject::destroyed, [] { App().BeginWatch(); });
        QMetaObject::invokeMethod(dialog, "accept");
    });
    timer->start(1);
}

constexpr char kReadDone[] = "Read data from target successfully.";
constexpr char kWriteDone[] = "Write data to target successfully.";
constexpr char kImportDone[] = "Import data from file successfully.";
constexpr char kExportDone[] = "Export data to file successfully.";

template <typename Page>
void Read(benchmark::State &state)
{
    CShown<Page> page;
    Measure(state, [&] { page.Run("m_btnUpload", kReadDone); });
}

template <typename Page>
void Write(benchmark::State &state)
{
    CShown<Page> page;
    page.Run("m_btnUpload", kReadDone);
    Measure(state, [&] { page.Run("m_btnDownload", kWriteDone); });
}

// The dialog is the user's; what comes behind it is the request.
template <typename Page>
void Files(benchmark::State &state, bool isImport)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("cal.ini");
    CShown<Page> page;
    page.Run("m_btnUpload", kReadDone);
    const auto run = [&](const char *button, const char *done) {
        AnswerFileDialog(file);
        page.Run(button, done);
    };
    run("m_btnSave", kExportDone);
    Measure(state, [&] {
        if (isImport)
            run("m_btnLoad", kImportDone);
        else
            run("m_btnSave", kExportDone);
    });
}
template <typename Page>
void Import(benchmark::State &state)
{
    Files<Page>(state, true);
}
template <typename Page>
void Export(benchmark::State &state)
{
    Files<Page>(state, false);
}

template <typename Page>
void Select(benchmark::State &state, const char *selector)
{
    CShown<Page> page;
    if (page.template findChild<QPushButton *>("m_btnUpload"))
        page.Run("m_btnUpload", kReadDone);
    Measure(state, [&] { Turn(page.Selector(selector)); });
}

template <typename Page>
void Paint(benchmark::State &state)
{
    CShown<Page> page;
    MeasurePaint(state, page);
}

void StartPusch(benchmark::State &state)
{
    CShown<CNrPuschTxNormalDockWidgetV7> page;
    Measure(state, [&] {
        page.Run("m_start", "Pusch TX start...");
        page.Run("m_stop", "Pusch TX stop.");
    });
}

void StartRssi(benchmark::State &state)
{
    CShown<CNrRssiDockWidgetV7> page;
    Measure(state, [&] { page.Run("m_start", "Fetch RSSI done"); });
}

// The report of an RSRP page with rows on the table already.
void Fetch(benchmark::State &state)
{
    CRunningPage page(static_cast<int>(state.range(0)));
    Measure(state, [&] {
        QMetaObject::invokeMethod(
            &page, [&] { page.Tick(); }, Qt::QueuedConnection);
        page.TakeAnswer();
    });
}

void PaintFetch(benchmark::State &state)
{
    CRunningPage page(static_cast<int>(state.range(0)));
    MeasurePaint(state, page);
}

using PathLoss = CNrRxPathlossDockWidgetV7;
using Apt = CNrAptProfileDockWidgetV7;
using Pusch = CNrPuschTxNormalDockWidgetV7;
using Rssi = CNrRssiDockWidgetV7;

constexpr char kBandCal[] = "calDataIf_config_group1_memberProperty_band";
constexpr char kBand[] = "cmdIf_request_group1_memberProperty_band";

// name: of the request and the page; a request is measured by its longest event.
template <typename Bench>
benchmark::internal::Benchmark *Add(const std::string &name, Bench bench)
{
    return benchmark::RegisterBenchmark(name.c_str(), bench)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

void RegisterSelect(const char *name, void (*bench)(benchmark::State &, const char *),
                    const char *selector)
{
    Add(name, [bench, selector](benchmark::State &state) { bench(state, selector); });
}

template <typename Page>
void RegisterFlows(const std::string &page)
{
    Add("Read/" + page, &Read<Page>);
    Add("Write/" + page, &Write<Page>);
    Add("Import/" + page, &Import<Page>);
    Add("Export/" + page, &Export<Page>);
    Add("Paint/" + page, &Paint<Page>);
}

void Register()
{
    RegisterFlows<PathLoss>("PathLoss");
    RegisterFlows<Apt>("Apt");
    RegisterSelect("PowerMode/PathLoss", &Select<PathLoss>,
                   "calDataIf_config_group1_memberProperty_powerMode");
    RegisterSelect("Band/PathLoss", &Select<PathLoss>, kBandCal);
    RegisterSelect("Route/Apt", &Select<Apt>, "calDataIf_config_group1_memberProperty_txRoute");
    RegisterSelect("Band/Apt", &Select<Apt>, kBandCal);
    RegisterSelect("Band/Pusch", &Select<Pusch>, kBand);
    Add("Start/Pusch", &StartPusch);
    Add("Paint/Pusch", &Paint<Pusch>);
    Add("Start/Rssi", &StartRssi);
    Add("Paint/Rssi", &Paint<Rssi>);
    Add("Fetch", &Fetch)->Arg(100)->Arg(10000);
    Add("PaintFetch", &PaintFetch)->Arg(100)->Arg(10000);
}

constexpr SRatio kRatios[] = {
    {"Read/PathLoss", "Paint/PathLoss", 1},
    {"Write/PathLoss", "Paint/PathLoss", 1},
    {"Import/PathLoss", "Paint/PathLoss", 1},
    {"Export/PathLoss", "Paint/PathLoss", 1},
    {"PowerMode/PathLoss", "Paint/PathLoss", 1},
    {"Band/PathLoss", "Paint/PathLoss", 1},
    {"Read/Apt", "Paint/Apt", 1},
    {"Write/Apt", "Paint/Apt", 1},
    {"Import/Apt", "Paint/Apt", 1},
    {"Export/Apt", "Paint/Apt", 1},
    {"Route/Apt", "Paint/Apt", 1},
    {"Band/Apt", "Paint/Apt", 1},
    {"Band/Pusch", "Paint/Pusch", 1},
    {"Start/Pusch", "Paint/Pusch", 1},
    {"Start/Rssi", "Paint/Rssi", 1},
    {"Fetch/100", "PaintFetch/100", 1},
    {"Fetch/10000", "PaintFetch/10000", 1},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    CTimedApplication application(argc, argv);
    RegisterOperationResultTypes();
    InitModelResources();
    Register();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
