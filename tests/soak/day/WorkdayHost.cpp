#include "tests/soak/day/WorkdayHost.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

#include "Host/dut/FaultDialog.h"
#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"
#include "tests/soak/day/WorkdayStep.h"

CWorkdayHost::CWorkdayHost(CDesk &desk, const SWorkdayPace &pace) : m_desk(desk), m_pace(pace)
{
    QString error;
    Need(m_plugin.Load(PluginFile(), error), error);
    m_host = std::make_unique<CBenchHost>(m_plugin);
}

void CWorkdayHost::Press(const char *name)
{
    auto *button = Find<QPushButton>(name);
    Need(WaitUntil([button] { return button->isEnabled() && button->isVisible(); }, kLongMs),
         QString("the host's %1 is off").arg(name));
    QTest::mouseClick(button, Qt::LeftButton);
    Rest(m_desk);
}

void CWorkdayHost::Turn(const QString &panel)
{
    auto *panels = Find<QTabWidget>("m_panels");
    int found = -1;
    for (int i = 0; i < panels->count(); ++i) {
        if (panels->tabText(i).remove('&') == panel)
            found = i;
    }
    Need(found >= 0, "the host has no page " + panel);
    panels->setCurrentIndex(found);
    PassMs(m_pace.lookMs);
}

void CWorkdayHost::Show()
{
    m_host->show();
    Press("m_show");
    const QString failure = m_desk.Show();
    Need(failure.isEmpty(), failure);
}

void CWorkdayHost::Panels()
{
    WorkDut();
    WorkFaults();
    WorkDoor();
    Turn("Plug-in");
}

void CWorkdayHost::WorkDut()
{
    Turn("DUT");
    auto *level = Find<QDoubleSpinBox>("m_level");
    level->setFocus();
    level->selectAll();
    QTest::keyClicks(level, "-71.5");
    QTest::keyClick(level, Qt::Key_Return);
    auto *plugged = Find<QCheckBox>("m_plugged");
    for (int turn = 0; turn < 2; ++turn)
        plugged->click();
    Need(VondSim_IsPlugged() == 1, "the plug stays out");
    for (const char *button : {"m_ownRadio", "m_restoreFlash"})
        Press(button);
    PassMs(m_pace.lookMs);
}

// One fault by the box, which is answered before it is shown to the desk.
void CWorkdayHost::WorkFaults()
{
    Turn("Faults");
    QTest::mouseClick(Find<QPushButton>("m_addFault"), Qt::LeftButton);
    auto *dialog = m_host->findChild<CFaultDialog *>();
    Need(dialog != nullptr, "no box for a fault");
    dialog->findChild<QComboBox *>("m_function")->setCurrentIndex(1);
    dialog->accept();
    Need(VondSim_FaultCount() == 1, "the fault is not added");
    PassMs(m_pace.lookMs);
    RemoveFaults();
    auto *scenario = Find<QComboBox>("m_scenario");
    scenario->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Home})
        QTest::keyClick(scenario, key);
    RemoveFaults();
    VondSim_SetPlugged(1);
}

void CWorkdayHost::WorkDoor()
{
    Turn("Door");
    auto *calls = Find<QTableView>("m_calls");
    auto *function = Find<QLineEdit>("m_function");
    function->setText("Rsrp");
    function->clear();
    Need(WaitUntil([calls] { return calls->model()->rowCount() > 1; }, kLongMs), "no call is told");
    for (const int row : {0, calls->model()->rowCount() - 1}) {
        calls->selectRow(row);
        PassMs(m_pace.lookMs);
    }
    for (const char *button : {"m_copy", "m_pause", "m_pause", "m_save"})
        Press(button);
    const auto isSaved = [this] { return Find<QPushButton>("m_save")->isEnabled(); };
    Need(WaitUntil(isSaved, kLongMs), "the trace is not saved");
    calls->clearSelection();
}

void CWorkdayHost::FailNextCall()
{
    Turn("Faults");
    Press("m_failNext");
    Need(VondSim_FaultCount() == 1, "the fault is not added");
}

void CWorkdayHost::RemoveFaults()
{
    Turn("Faults");
    if (Find<QPushButton>("m_removeAll")->isEnabled())
        Press("m_removeAll");
    Need(VondSim_FaultCount() == 0, "a fault stays");
}

void CWorkdayHost::FillEvents()
{
    constexpr int kMostEvents = 1000;
    for (int i = 0; i < kMostEvents; ++i)
        m_host->AddEvent("Busy", QString("NR5G V7: %1").arg(i % 2 == 0 ? "on" : "off"));
}

void CWorkdayHost::ForgetCalls()
{
    Turn("Door");
    VondSim_ClearJournal();
    const auto *calls = Find<QTableView>("m_calls")->model();
    Need(WaitUntil([calls] { return calls->rowCount() == 0; }, kLongMs), "the calls stay");
}

void CWorkdayHost::Buttons()
{
    for (const char *button : {"m_query", "m_disable", "m_enable", "m_picture", "m_hide"})
        Press(button);
    Show();
    m_desk.Window()->close();
    Rest(m_desk);
    Show();
}

void CWorkdayHost::CloseAndReopen()
{
    m_host->close();
    Rest(m_desk);
    Need(!m_host->isVisible(), "the host does not close");
    Show();
}

void CWorkdayHost::Reset()
{
    Press("m_reset");
    Need(m_desk.Pages().isEmpty(), "a reset leaves pages");
    Show();
}
