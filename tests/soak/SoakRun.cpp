#include "tests/soak/SoakRun.h"

#include <algorithm>
#include <cstdio>

#include <QElapsedTimer>
#include <QThreadPool>

#include "Simulator/VondSim.h"

namespace {

constexpr int kHalfAMinute = 30000;  // ms
constexpr int kBaseline = 5;         // minutes
constexpr double kMostGrowth = 2;    // percent
constexpr int kFewestAnswers = 5;    // between two actions
constexpr int kMostAnswers = 40;

double Megabytes(std::size_t bytes)
{
    return static_cast<double>(bytes) * 1e-6;
}

struct SFigure
{
    const char *name;
    std::size_t SMemory::*bytes;
};

constexpr SFigure kFigures[] = {
    {"resident", &SMemory::resident},
    {"in use", &SMemory::inUse},
};

}  // namespace

CSoakRun::CSoakRun(unsigned seed) : m_chance(seed) {}

bool CSoakRun::Minutes(int minutes)
{
    std::printf("| Minute | Resident, MB | In use, MB | Actions | Fetches | Rows at the end | "
                "Tick to rows, ms | worst | GUI thread works, ms a fetch | worst | "
                "Longest event works, ms | passes |\n"
                "|---|---|---|---|---|---|---|---|---|---|---|---|\n");
    m_user.Begin();
    for (int minute = 1; minute <= minutes; ++minute) {
        m_clock.TakeCost();
        CSoakApplication::Instance()->TakeLongest();
        const int answers = m_clock.Answers();
        ActForHalfAMinute();
        RunForHalfAMinute();
        m_cost = m_clock.TakeCost();
        m_longest = CSoakApplication::Instance()->TakeLongest();
        m_fetches = m_clock.Answers() - answers;
        m_memory.push_back(ClearAndMeasure());
        PrintMinute();
    }
    if (m_clock.Skipped() > 0)
        std::printf("\n%d ticks were skipped, since an answer was late.\n", m_clock.Skipped());
    return Compare(minutes);
}

void CSoakRun::PrintMinute() const
{
    std::printf("| %zu | %.3f | %.3f | %d | %d | %d | %.1f | %.1f | %.1f | %.1f | %.1f | %.1f |\n",
                m_memory.size(), Megabytes(m_memory.back().resident),
                Megabytes(m_memory.back().inUse), m_actions, m_fetches, m_rows,
                m_cost.toRows.Mean(), m_cost.toRows.worst, m_cost.gui.Mean(), m_cost.gui.worst,
                m_longest.worked, m_longest.passed);
    std::fflush(stdout);
}

void CSoakRun::Fetches(int fetches)
{
    m_user.Begin();
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

bool CSoakRun::Compare(int minutes) const
{
    if (minutes <= kBaseline)
        return true;
    bool isSteady = true;
    std::printf("\n");
    for (const SFigure &figure : kFigures) {
        const double before = Megabytes(m_memory[kBaseline - 1].*figure.bytes);
        const double after = Megabytes(m_memory.back().*figure.bytes);
        const double growth = (after / before - 1) * 100;
        const bool holds = growth <= kMostGrowth;
        isSteady = isSteady && holds;
        std::printf("Memory %s: %.3f MB after %d minutes, %.3f MB after %d: %+.2f %%, at most "
                    "%+.0f %%: %s\n",
                    figure.name, before, kBaseline, after, minutes, growth, kMostGrowth,
                    holds ? "holds" : "FAILS");
    }
    return isSteady;
}
