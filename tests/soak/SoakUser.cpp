#include "tests/soak/SoakUser.h"

#include <iterator>
#include <stdexcept>

#include <QAction>
#include <QPushButton>
#include <QSpinBox>

#include "tests/common/WaitUntil.h"
#include "tests/soak/SoakClock.h"

struct CSoakUser::SAction
{
    const char *name;
    void (CSoakUser::*act)();
};

const CSoakUser::SAction CSoakUser::kActions[] = {
    {"stop and start", &CSoakUser::Restart},
    {"clear", &CSoakUser::StopAndClear},
    {"tab change", &CSoakUser::ChangeTab},
    {"reset of the counters", &CSoakUser::ResetCounters},
};

CSoakUser::CSoakUser(CSoakClock &clock) : m_clock(clock), m_session(QStringLiteral("Normal")) {}

int CSoakUser::Actions()
{
    return static_cast<int>(std::size(kActions));
}

void CSoakUser::Act(int action)
{
    const SAction &chosen = kActions[action];
    m_clock.Disturb();
    try {
        (this->*chosen.act)();
    } catch (const std::runtime_error &error) {
        throw std::runtime_error(std::string(chosen.name) + ": " + error.what());
    }
    m_clock.Disturb();
}

void CSoakUser::Begin()
{
    if (!m_session.Ready() || !m_session.Choose("mimoType", "4x4"))
        throw std::runtime_error("the page does not appear");
    m_session.Input<QSpinBox>("group1", "reportPeriod")->setValue(kSoakPeriod);
    m_session.Input<QSpinBox>("group1", "measCnt")->setValue(kRowsAnAnswer);
    if (!m_clock.Watch(m_session.Page()))
        throw std::runtime_error("the page has no report timer");
    Start();
}

QWidget *CSoakUser::PlotWindow() const
{
    return m_session.Page()->findChild<QWidget *>("CPlotWindow", Qt::FindDirectChildrenOnly);
}

void CSoakUser::ShowPlot(bool isShown)
{
    if (!isShown)
        PlotWindow()->close();
    else if (auto *action = m_session.Page()->findChild<QAction *>("m_actionPlot"))
        action->trigger();
    const char *what = isShown ? "the plot" : "the end of the plot";
    Await(what, [this, isShown] { return PlotWindow() && PlotWindow()->isVisible() == isShown; });
}

void CSoakUser::WaitForAnswers(int count)
{
    const int wanted = m_clock.Answers() + count;
    while (m_clock.Answers() < wanted) {
        const int before = m_clock.Answers();
        Await("a report", [&] { return m_clock.Answers() > before; });
    }
}

void CSoakUser::Fill(int rows)
{
    while (Rows() < rows) {
        if (!m_session.Fetch())
            throw std::runtime_error("waited in vain for rows");
    }
}

void CSoakUser::Stop()
{
    m_session.Press("m_stop");
    AwaitIdle();
}

// The button is off while the test runs.
void CSoakUser::Clear()
{
    CheckRows();
    m_session.Press("clearPushButton");
    m_clock.TableIsCleared();
    Await("the end of Clear", [this] { return IsOn("clearPushButton"); });
    CheckRows();
}

// The page's own flag of a button; the page is off as a whole while another is in front.
bool CSoakUser::IsOn(const char *button) const
{
    const auto *widget = m_session.Find<QPushButton>(button);
    return widget->isEnabledTo(widget->parentWidget());
}

void CSoakUser::Await(const char *what, const std::function<bool()> &condition)
{
    if (!WaitUntil(condition))
        throw std::runtime_error(std::string("waited in vain for ") + what);
    if (!m_clock.Failure().isEmpty())
        throw std::runtime_error(m_clock.Failure().toStdString());
}

void CSoakUser::CheckRows()
{
    const int wanted = m_clock.AnswersInTable() * kRowsAnAnswer;
    if (Rows() != wanted)
        throw std::runtime_error(std::to_string(Rows()) + " rows on the table, should be " +
                                 std::to_string(wanted));
}

void CSoakUser::Start()
{
    m_session.Press("m_start");
    m_clock.TableIsCleared();
    Await("the start", [this] { return IsOn("m_stop") && !IsOn("m_start"); });
}

void CSoakUser::AwaitIdle()
{
    Await("the stop", [this] { return IsOn("m_start") && !IsOn("m_stop"); });
}

void CSoakUser::Restart()
{
    Stop();
    CheckRows();
    Start();
}

void CSoakUser::StopAndClear()
{
    Stop();
    Clear();
    Start();
}

void CSoakUser::ChangeTab()
{
    CheckRows();
    if (!m_session.ClickTab("Continuous RX"))
        throw std::runtime_error("the other page does not come to the front");
    AwaitIdle();
    if (!m_session.ClickTab("RSRP Normal Mode"))
        throw std::runtime_error("the page does not come back to the front");
    Start();
}

void CSoakUser::ResetCounters()
{
    m_session.Press("resetPushButton");
    Await("the end of Reset Counter", [this] { return IsOn("resetPushButton"); });
}
