#include "tests/soak/SoakRun.h"

#include <algorithm>
#include <cstdio>

#include <QElapsedTimer>
#include <QThreadPool>

#include "Simulator/VondSim.h"

namespace {

constexpr int kHalfAMinute = 30000;  // ms
constexpr int kFewestAnswers = 5;    // between two actions
constexpr int kMostAnswers = 40;
constexpr double kMostPlotCost = 1.3;  // times a fetch without it

double Megabytes(std::size_t bytes)
{
    return static_cast<double>(bytes) * 1e-6;
}

}  // namespace

CSoakRun::CSoakRun(unsigned seed, bool hasPlot) : m_chance(seed), m_hasPlot(hasPlot) {}

bool CSoakRun::Minutes(int minutes)
{
    PrintHead();
    m_user.Begin();
    if (m_hasPlot)
        m_user.ShowPlot(true);
    for (int minute = 1; minute <= minutes; ++minute) {
        m_clock.TakeCost();
        CSoakApplication::Instance()->TakeLongest();
        const int answers = m_clock.Answers();
        ActForHalfAMinute();
        if (m_hasPlot)
            RunWithAndWithoutPlot();
        else
            RunForHalfAMinute();
        m_longest = CSoakApplication::Instance()->TakeLongest();
        m_fetches = m_clock.Answers() - answers;
        m_memory.push_back(ClearAndMeasure());
        PrintMinute();
    }
    if (m_clock.Skipped() > 0)
        std::printf("\n%d ticks were skipped, since an answer was late.\n", m_clock.Skipped());
    const bool isSteady = IsSteady();
    return IsPlotCheap() && isSteady;
}

void CSoakRun::PrintHead() const
{
    std::printf("| Minute | Resident, MB | In use, MB | Actions | Fetches | Rows at the end | "
                "Tick to rows, ms | worst | GUI thread works, ms a fetch | worst | "
                "Longest event works, ms | passes |%s\n"
                "|---|---|---|---|---|---|---|---|---|---|---|---|%s\n",
                m_hasPlot ? " Without the plot: works, ms a fetch | worst | Ratio |" : "",
                m_hasPlot ? "---|---|---|" : "");
}

void CSoakRun::PrintMinute() const
{
    std::printf("| %zu | %.3f | %.3f | %d | %d | %d | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f |",
                m_memory.size(), Megabytes(m_memory.back().resident),
                Megabytes(m_memory.back().inUse), m_actions, m_fetches, m_rows,
                m_cost.toRows.Mean(), m_cost.toRows.worst, m_cost.gui.Mean(), m_cost.gui.worst,
                m_longest.worked, m_longest.passed);
    if (m_hasPlot)
        std::printf(" %.1f | %.1f | %.2f |", m_without.gui.Mean(), m_without.gui.worst,
                    m_cost.gui.Mean() / m_without.gui.Mean());
    std::printf("\n");
    std::fflush(stdout);
}

bool CSoakRun::AtRows(int rows)
{
    constexpr int kRounds = 4;
    constexpr int kFetchesARound = 26;
    m_user.Begin();
    m_user.ShowPlot(true);
    m_user.Fill(rows);
    for (int round = 0; round < kRounds; ++round) {
        for (const bool isWith : {round % 2 == 0, round % 2 != 0}) {
            m_user.ShowPlot(isWith);
            (isWith ? m_guiWith : m_guiWithout).Add(RunUndisturbed(kFetchesARound).gui.Mean());
        }
    }
    std::printf("At %d rows: ", rows);
    return IsPlotCheap();
}

void CSoakRun::Fetches(int fetches)
{
    m_user.Begin();
    if (m_hasPlot)
        m_user.ShowPlot(true);
    const int turns = CSoakUser::Actions() + 1;
    for (int turn = 0; turn < turns; ++turn) {
        m_user.WaitForAnswers(std::max(1, fetches / turns));
        if (turn < CSoakUser::Actions())
            m_user.Act(turn);
    }
    const SMemory memory = ClearAndMeasure();
    std::printf("%d fetches, %.3f MB in use\n", m_clock.Answers(), Megabytes(memory.inUse));
}

void CSoakRun::ActForHalfAMinute()
{
    using Draw = std::uniform_int_distribution<int>;
    QElapsedTimer time;
    time.start();
    for (m_actions = 0; true; ++m_actions) {
        const int answers = Draw(kFewestAnswers, kMostAnswers)(m_chance);
        const int action = Draw(0, CSoakUser::Actions() - 1)(m_chance);
        for (int i = 0; i < answers; ++i) {
            m_user.WaitForAnswers(1);
            if (time.hasExpired(kHalfAMinute))
                return;
        }
        m_user.Act(action);
    }
}

void CSoakRun::RunForHalfAMinute()
{
    m_clock.Disturb();
    m_user.Stop();
    m_user.Start();
    m_clock.Disturb();
    m_user.WaitForAnswers(kHalfAMinute / kSoakPeriod);
    m_cost = m_clock.TakeCost();
}

void CSoakRun::RunWithAndWithoutPlot()
{
    m_clock.Disturb();
    m_user.Stop();
    m_user.Start();
    const bool isWithFirst = m_memory.size() % 2 == 0;
    for (const bool isWith : {isWithFirst, !isWithFirst}) {
        m_user.ShowPlot(isWith);
        (isWith ? m_cost : m_without) = RunUndisturbed(kHalfAMinute / kSoakPeriod / 2);
        (isWith ? m_guiWith : m_guiWithout).Add((isWith ? m_cost : m_without).gui.Mean());
    }
    m_user.ShowPlot(true);
}

// The first answer ends what was under way.
SFetchCost CSoakRun::RunUndisturbed(int fetches)
{
    m_clock.Disturb();
    m_user.WaitForAnswers(1);
    m_clock.Disturb();
    m_clock.TakeCost();
    m_user.WaitForAnswers(fetches - 1);
    return m_clock.TakeCost();
}

SMemory CSoakRun::ClearAndMeasure()
{
    m_clock.Disturb();
    m_user.Stop();
    m_rows = m_user.Rows();
    m_user.Clear();
    QThreadPool::globalInstance()->waitForDone();
    VondSim_ClearJournal();
    const SMemory memory = ReadMemory();
    m_user.Start();
    m_clock.Disturb();
    return memory;
}

bool CSoakRun::IsSteady() const
{
    const std::vector<SGrowth> figures = CompareMemory(m_memory);
    std::printf(figures.empty() ? "\nToo short to compare memory.\n" : "\n");
    bool isSteady = true;
    for (const SGrowth &growth : figures) {
        isSteady = isSteady && growth.Holds();
        std::printf("Memory %s: %.3f MB after 5 minutes, %.3f MB at the end: %+.2f %%, at most "
                    "%+.0f %%: %s\n",
                    growth.name, Megabytes(growth.before), Megabytes(growth.after), growth.percent,
                    kMostGrowth, growth.Holds() ? "holds" : "FAILS");
    }
    return isSteady;
}

bool CSoakRun::IsPlotCheap() const
{
    if (m_guiWithout.count == 0)
        return true;
    const double ratio = m_guiWith.Mean() / m_guiWithout.Mean();
    const bool holds = ratio <= kMostPlotCost;
    std::printf("GUI thread a fetch: %.2f ms with the plot, %.2f ms without: %.2f times, at most "
                "%.1f times: %s\n",
                m_guiWith.Mean(), m_guiWithout.Mean(), ratio, kMostPlotCost,
                holds ? "holds" : "FAILS");
    return holds;
}
