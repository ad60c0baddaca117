#include "tests/soak/day/WorkdayTool.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"
#include "tests/hands/seeds/PageDeeds.h"
#include "tests/hands/seeds/SeedActions.h"
#include "tests/soak/day/WorkdayStep.h"

namespace {

constexpr const char *kTests[] = {"CNrContRxDockWidgetV7",       "CNrRssiDockWidgetV7",
                                  "CNrRsrpForceDockWidgetV7",    "CNrRsrpNormalDockWidgetV7",
                                  "CNrSingleToneTxDockWidgetV7", "CNrPuschTxForcedDockWidgetV7",
                                  "CNrPuschTxNormalDockWidgetV7"};
constexpr const char *kCalibrations[] = {"CNrRxPathlossDockWidgetV7", "CNrAptProfileDockWidgetV7"};
constexpr const char *kHelpers[] = {"m_btnCalculate", "m_btnFetchPd"};
constexpr const char *kExports[] = {"m_actionExportResults", "m_actionExportGains"};
constexpr char kReportDone[] = "RsrpRsrq RX get report done.";
constexpr int kPeriodMs = 300;
constexpr int kEdits = 6;
constexpr int kMostLogged = 10000;
constexpr int kLogText = 3;  // column

// The page has the button; it may be off.
bool Has(const QDockWidget *page, const char *button)
{
    return page->findChild<QPushButton *>(button) != nullptr;
}

}  // namespace

void PassMs(int ms)
{
    QElapsedTimer timer;
    timer.start();
    QTimer end;
    end.start(ms);
    WaitUntil([&] { return timer.hasExpired(ms); }, 2 * ms + kLongMs);
}

CWorkdayTool::CWorkdayTool(CDesk &desk, CChance &chance, const SWorkdayPace &pace)
    : m_desk(desk), m_chance(chance), m_pace(pace)
{
    m_desk.onStatus = [this](QDockWidget *, const QString &text) {
        m_reports += text == QLatin1String(kReportDone);
    };
}

QDockWidget *CWorkdayTool::Front(const char *className)
{
    QDockWidget *page = RaisedPage(m_desk, className);
    Need(page != nullptr, QString("there is no %1").arg(className));
    const bool isFront = WaitUntil(
        [page] { return page->isEnabled() && !page->visibleRegion().isEmpty(); }, kLongMs);
    Need(isFront, QString("%1 does not come to the front").arg(className));
    Rest(m_desk);
    return page;
}

void CWorkdayTool::TestPages()
{
    for (const char *page : kTests)
        RunTest(page);
}

void CWorkdayTool::Start(QDockWidget *page)
{
    MustDo(m_desk, PressOn(m_desk, page, "m_start"));
    ++m_tests;
    Need(!Has(page, "m_stop") || *VondSim_RunningTest(), "no test runs: " + page->windowTitle());
}

void CWorkdayTool::RunTest(const char *className)
{
    QDockWidget *page = Front(className);
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionSaveSettings"));
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionLoadSettings"));
    if (page->findChild<QAction *>("m_actionPlot"))
        MustDo(m_desk, TriggerOn(m_desk, page, "m_actionPlot"));
    auto *period = page->findChild<QSpinBox *>("cmdIf_request_group1_memberProperty_reportPeriod");
    if (period)
        period->setValue(kPeriodMs);
    for (const char *helper : kHelpers)
        Do(m_desk, PressOn(m_desk, page, helper));
    Start(page);
    const int wanted = m_reports + m_pace.reports;
    if (period)
        Need(WaitUntil([&] { return m_reports >= wanted; }, kLongMs), "no reports come");
    else
        PassMs(m_pace.testMs);
    for (const char *helper : kHelpers)
        Do(m_desk, PressOn(m_desk, page, helper));
    for (const char *results : kExports)
        Do(m_desk, TriggerOn(m_desk, page, results));
    if (Has(page, "m_stop"))
        MustDo(m_desk, PressOn(m_desk, page, "m_stop"));
    Need(!*VondSim_RunningTest(), "the test does not stop: " + page->windowTitle());
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionExplain"));
    CloseWindows();
}

void CWorkdayTool::CalibrationPages()
{
    for (const char *page : kCalibrations)
        Calibrate(page);
}

void CWorkdayTool::Calibrate(const char *className)
{
    QDockWidget *page = Front(className);
    MustDo(m_desk, PressOn(m_desk, page, "m_btnUpload"));
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionPlot"));
    for (int edit = 0; edit < kEdits; ++edit)
        Do(m_desk, EditCell(m_desk, m_chance));
    Front(className);
    for (const char *step : {"m_actionUndo", "m_actionUndo", "m_actionRedo", "m_actionFillRight",
                             "m_actionCopyCells", "m_actionPasteCells"})
        Do(m_desk, TriggerOn(m_desk, page, step));
    MustDo(m_desk, PressOn(m_desk, page, "m_btnDownload"));
    MustDo(m_desk, PressOn(m_desk, page, "m_btnSave"));
    MustDo(m_desk, PressOn(m_desk, page, "m_btnLoad"));
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionSaveSettings"));
    MustDo(m_desk, TriggerOn(m_desk, page, "m_actionLoadSettings"));
    Do(m_desk, Compare(m_desk, m_chance));
    PassMs(m_pace.lookMs);
    CloseWindows();
    Do(m_desk, EditCell(m_desk, m_chance));
    Do(m_desk, GuardedWrite(m_desk, m_chance));
    CloseWindows();
}

void CWorkdayTool::OtherWindows()
{
    QDockWidget *page = Front(m_chance.Of(kTests));
    for (const char *action : {"m_actionLog", "m_actionExplain", "m_actionNextPage"})
        MustDo(m_desk, TriggerOn(m_desk, page, action));
    PassMs(m_pace.lookMs);
    page = Front(m_chance.Of(kTests));
    for (int turn = 0; turn < 2; ++turn)
        MustDo(m_desk, TriggerOn(m_desk, page, "m_actionFloatPage"));
    CloseWindows();
}

void CWorkdayTool::FillLog()
{
    MustDo(m_desk, TriggerOn(m_desk, Front(kTests[0]), "m_actionLog"));
    const QWidget *log = m_desk.Window()->findChild<QWidget *>("CSessionLogWindow");
    const auto *table = log ? log->findChild<QTableView *>() : nullptr;
    Need(table != nullptr, "the log has no table");
    QStringList texts;
    for (int row = 0; row < table->model()->rowCount(); ++row)
        texts.append(table->model()->index(row, kLogText).data().toString());
    CloseWindows();
    for (int i = 0; i < kMostLogged; ++i) {
        const QString text = texts[i % texts.size()];
        // A text of its own, as the tool's are.
        QMetaObject::invokeMethod(m_desk.Window(), "Slot_UpdateStatusbar",
                                  Q_ARG(QString, QString(text.constData(), text.size())));
    }
    Rest(m_desk);
}

void CWorkdayTool::FailedStart()
{
    QDockWidget *page = Front(kTests[0]);
    const int boxes = m_desk.Boxes().Seen().size();
    MustDo(m_desk, PressOn(m_desk, page, "m_start"));
    ++m_tests;
    Need(m_desk.Boxes().Seen().size() > boxes, "a refused start opens no box");
    Need(!*VondSim_RunningTest(), "a refused test runs");
}

void CWorkdayTool::CloseWindows()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool isMain = qobject_cast<QMainWindow *>(window) != nullptr;
        if (window->isVisible() && !isMain && !qobject_cast<QDockWidget *>(window))
            window->close();
    }
    Rest(m_desk);
}
