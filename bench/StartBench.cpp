// From ShowPlugin to "Init done." with all pages, beside the nine bare forms shown one after
// another and each patched document's text there and back; the memory that both take; one start of
// a test, from the click to the status line, beside an empty job through the pool.
#include <malloc.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QThreadPool>
#include <QtConcurrent>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Operations/capability/TargetCapability.h"
#include "PluginInterface/QuorlinPluginInterface.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrContRxDockWidgetV7.h"
#include "View/Rx/NrRsrpForceDockWidgetV7.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"
#include "View/Rx/NrRssiDockWidgetV7.h"
#include "View/Rx/NrRxPathlossDockWidgetV7.h"
#include "View/Tx/NrAptProfileDockWidgetV7.h"
#include "View/Tx/NrPuschTxForcedDockWidgetV7.h"
#include "View/Tx/NrPuschTxNormalDockWidgetV7.h"
#include "View/Tx/NrSingleToneTxDockWidgetV7.h"
#include "bench/BenchMain.h"
#include "tests/common/CalProfile.h"

namespace {

// The largest with the handset's gain modes: its own are more than a path loss page has room for,
// and the box that says so waits for a person.
constexpr const char *kProfiles[] = {R"({"name": "handset", "base": "handset"})",
                                     kLargestCalProfile};
constexpr const char *kNames[] = {"handset", "largest"};

constexpr EPageId kPages[] = {EPageId::Rssi,       EPageId::RxPathLoss,   EPageId::ContRx,
                              EPageId::RsrpForce,  EPageId::RsrpNormal,   EPageId::SingleToneTx,
                              EPageId::AptProfile, EPageId::PuschTxForce, EPageId::PuschTxNormal};

template <typename Condition>
void Wait(Condition condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// As a main window's event loop between two slots.
void HandleEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The plug-in as a host holds it, on a DUT that answers at once.
class CTool
{
public:
    explicit CTool(const char *profile)
    {
        VondSim_Reset();
        VondSim_SetProfileText(profile);
        m_plugin.ResetPlugin();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "CQuorlinForm")
                m_window = static_cast<QMainWindow *>(widget);
        }
    }
    ~CTool()
    {
        m_plugin.HidePlugin();
        QThreadPool::globalInstance()->waitForDone();
        HandleEvents();
    }

    void Show()
    {
        m_plugin.ShowPlugin();
        Wait([this] { return Window()->isEnabled() && Status() == "Init done."; });
    }
    QMainWindow *Window() const { return m_window; }
    QString Status() const { return Window()->statusBar()->currentMessage(); }

private:
    QuorlinPluginInterface m_plugin;
    QMainWindow *m_window = nullptr;
};

// The window and its making are the host's load of the plug-in; what a user waits for begins at the
// show.
void Start(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            CTool tool(kProfiles[state.range(0)]);
            state.ResumeTiming();
            tool.Show();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetLabel(kNames[state.range(0)]);
}
BENCHMARK(Start)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// A page that asks for no document.
template <typename Page>
class CBare : public Page
{
public:
    explicit CBare(QWidget *parent) : Page(parent) {}
    void RequestDataModel() override {}
};

template <typename... Pages>
void ShowBareForms(QMainWindow &window)
{
    QDockWidget *first = nullptr;
    const auto show = [&](QDockWidget *page) {
        window.addDockWidget(Qt::TopDockWidgetArea, page);
        HandleEvents();
        if (first)
            window.tabifyDockWidget(first, page);
        else
            first = page;
    };
    (show(new CBare<Pages>(&window)), ...);
    first->raise();
    HandleEvents();
}

std::vector<std::string> PatchedTexts(const char *profile)
{
    VondSim_Reset();
    VondSim_SetProfileText(profile);
    CTargetCapability::Reset();
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    std::vector<std::string> texts;
    for (const EPageId id : kPages) {
        const SPageRow &page = FindPage(id);
        QFile file(page.resource);
        file.open(QIODevice::ReadOnly);
        QJsonObject document = ModelFromText(file.readAll().toStdString());
        (updater.*page.driver)(document);
        texts.push_back(ModelToText(document));
    }
    return texts;
}

void TextsThereAndBack(const std::vector<std::string> &texts)
{
    for (const std::string &text : texts)
        benchmark::DoNotOptimize(ModelToText(ModelFromText(text)));
}

// A window of the tool's size for bare forms.
class CBareWindow
{
public:
    CBareWindow()
    {
        m_window.setDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::ForceTabbedDocks);
        m_window.setTabPosition(Qt::TopDockWidgetArea, QTabWidget::North);
        m_window.statusBar();
        const CTool tool(kProfiles[0]);
        m_window.setFixedSize(tool.Window()->size());
    }

    void Show()
    {
        m_window.show();
        ShowBareForms<CNrRssiDockWidgetV7, CNrRxPathlossDockWidgetV7, CNrContRxDockWidgetV7,
                      CNrRsrpForceDockWidgetV7, CNrRsrpNormalDockWidgetV7,
                      CNrSingleToneTxDockWidgetV7, CNrAptProfileDockWidgetV7,
                      CNrPuschTxForcedDockWidgetV7, CNrPuschTxNormalDockWidgetV7>(m_window);
    }

private:
    QMainWindow m_window;
};

// The floor of Start: the same nine forms in a window of the same size, and the documents' texts.
void BareStart(benchmark::State &state)
{
    const std::vector<std::string> texts = PatchedTexts(kProfiles[state.range(0)]);
    for (auto _ : state) {
        state.PauseTiming();
        {
            CBareWindow window;
            state.ResumeTiming();
            window.Show();
            TextsThereAndBack(texts);
            state.PauseTiming();
        }
        HandleEvents();
        state.ResumeTiming();
    }
    state.SetLabel(kNames[state.range(0)]);
}
BENCHMARK(BareStart)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The part of the floor that is text alone.
void DocumentTexts(benchmark::State &state)
{
    const std::vector<std::string> texts = PatchedTexts(kProfiles[state.range(0)]);
    for (auto _ : state)
        TextsThereAndBack(texts);
    state.SetLabel(kNames[state.range(0)]);
}
BENCHMARK(DocumentTexts)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

size_t UsedMemory()
{
    const auto usage = mallinfo2();
    return usage.uordblks + usage.hblkhd;
}

// One millisecond stands for one megabyte.
void SetMegabytes(benchmark::State &state, size_t before)
{
    const size_t now = UsedMemory();
    state.SetIterationTime(now > before ? static_cast<double>(now - before) * 1e-9 : 0);
}

// What the tool holds when it is started, its window's own picture included.
void Memory(benchmark::State &state)
{
    CTool(kProfiles[state.range(0)]).Show();  // what is made once in a process
    for (auto _ : state) {
        const size_t before = UsedMemory();
        CTool tool(kProfiles[state.range(0)]);
        tool.Show();
        SetMegabytes(state, before);
    }
    state.SetLabel("MB");
}
BENCHMARK(Memory)->Arg(0)->Arg(1)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// Its floor: the bare forms and their parsed documents.
void BareMemory(benchmark::State &state)
{
    const std::vector<std::string> texts = PatchedTexts(kProfiles[state.range(0)]);
    CBareWindow().Show();
    for (auto _ : state) {
        const size_t before = UsedMemory();
        CBareWindow window;
        window.Show();
        std::vector<QJsonObject> documents;
        for (const std::string &text : texts)
            documents.push_back(ModelFromText(text));
        SetMegabytes(state, before);
    }
    state.SetLabel("MB");
}
BENCHMARK(BareMemory)
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

// One start of continuous RX: the click, the document packaged, the pool, the command, the answer,
// the line in the status bar. The stop between two starts is not measured.
void StartTurn(benchmark::State &state)
{
    CTool tool(kProfiles[0]);
    tool.Show();
    auto *page = tool.Window()->findChild<CNrContRxDockWidgetV7 *>();
    page->raise();
    auto *start = page->findChild<QPushButton *>("m_start");
    Wait([&] { return start->isEnabled(); });
    for (auto _ : state) {
        start->click();
        Wait([&] { return tool.Status() == "Cont Rx start..."; });
        state.PauseTiming();
        auto *stop = page->findChild<QPushButton *>("m_stop");
        Wait([&] { return stop->isEnabled(); });
        stop->click();
        Wait([&] { return tool.Status() == "Cont Rx stop." && start->isEnabled(); });
        state.ResumeTiming();
    }
}
BENCHMARK(StartTurn)->Unit(benchmark::kMicrosecond);

// Its floor: a job that does nothing, through the pool and back to the GUI thread, and the page's
// text there and back once.
void PoolTurn(benchmark::State &state)
{
    const std::string text = PatchedTexts(kProfiles[0]).at(2);
    QObject home;
    for (auto _ : state) {
        bool isBack = false;
        QtConcurrent::run([&] {
            benchmark::DoNotOptimize(ModelToText(ModelFromText(text)));
            QMetaObject::invokeMethod(
                &home, [&isBack] { isBack = true; }, Qt::QueuedConnection);
        });
        Wait([&] { return isBack; });
    }
}
BENCHMARK(PoolTurn)->Unit(benchmark::kMicrosecond);

constexpr SRatio kRatios[] = {
    {"Start/0", "BareStart/0", 1.3},   {"Start/1", "BareStart/1", 1.5},
    {"Memory/0", "BareMemory/0", 1.3}, {"Memory/1", "BareMemory/1", 1.3},
    {"StartTurn", "PoolTurn", 0},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    QApplication application(argc, argv);
    InitModelResources();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
