#include "tests/soak/day/Workday.h"

#include <cstdio>
#include <iterator>
#include <utility>

#include <malloc.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <QApplication>
#include <QPixmapCache>
#include <QThreadPool>

#include "Simulator/VondSim.h"
#include "tests/soak/SoakClock.h"
#include "tests/soak/day/SoakObjects.h"
#include "tests/soak/day/WorkdayStep.h"

namespace {

constexpr qint64 kQuarterMs = 15 * 60 * 1000;

// Seconds of the machine's own clock, past a library that makes the process's clocks run faster.
double MachineSeconds()
{
    timespec time = {};
    syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double InMegabytes(std::size_t bytes)
{
    return static_cast<double>(bytes) * 1e-6;
}

void PrintWorkdayHead()
{
    constexpr const char *kColumns[] = {"Time",
                                        "By the machine, min",
                                        "Rounds",
                                        "Tests",
                                        "Reports",
                                        "In use before the reset, MB",
                                        "Resident, MB",
                                        "In use, MB",
                                        "Outside malloc, MB",
                                        "Files",
                                        "Threads",
                                        "Widgets",
                                        "Windows",
                                        "Objects",
                                        "Timers",
                                        "Longest event works, ms",
                                        "passes, ms"};
    for (const char *column : kColumns)
        std::printf("| %s ", column);
    std::printf("|\n");
    for (std::size_t i = 0; i < std::size(kColumns); ++i)
        std::printf("|---");
    std::printf("|\n");
    std::fflush(stdout);
}

const char *Word(bool holds)
{
    return holds ? "holds" : "FAILS";
}

}  // namespace

CWorkday::CWorkday(const SWorkdayOptions &options)
    : m_options(options), m_chance(options.seed), m_desk("handset", options.folder),
      m_host(m_desk, options.pace), m_tool(m_desk, m_chance, options.pace),
      m_machineAtStart(MachineSeconds())
{
    m_time.start();
    m_host.Show();
    PrintWorkdayHead();
}

void CWorkday::Hours(double hours)
{
    qint64 next = kQuarterMs;
    while (m_time.elapsed() < static_cast<qint64>(hours * 4 * kQuarterMs)) {
        Round();
        if (m_rounds == 1)
            FillLists();
        if (m_time.elapsed() < next)
            continue;
        Line();
        while (next <= m_time.elapsed())
            next += kQuarterMs;
    }
}

// Lists with a bound are full from the first line on.
void CWorkday::FillLists()
{
    m_tool.FillLog();
    m_host.FillEvents();
}

void CWorkday::Rounds(int rounds)
{
    for (int round = 0; round < rounds; ++round) {
        Round();
        Line();
    }
}

void CWorkday::Part(const char *name, const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::runtime_error &error) {
        throw std::runtime_error(
            QString("round %1, %2: %3").arg(m_rounds).arg(name, error.what()).toStdString());
    }
    if (m_options.isVerbose)
        std::fprintf(stderr, "%s: %.1f s\n", name, MachineSeconds() - m_machineAtStart);
    const QWidget *box = QApplication::activeModalWidget();
    Need(box == nullptr, QString("a box stays open behind %1").arg(name));
    Need(!*VondSim_RunningTest(), QString("a test runs behind %1").arg(name));
}

void CWorkday::Round()
{
    ++m_rounds;
    Part("tests", [this] { m_tool.TestPages(); });
    Part("calibration", [this] { m_tool.CalibrationPages(); });
    Part("other windows", [this] { m_tool.OtherWindows(); });
    Part("the host's pages", [this] { m_host.Panels(); });
    Part("the host's buttons", [this] { m_host.Buttons(); });
    Part("a refused start", [this] {
        m_host.FailNextCall();
        m_tool.FailedStart();
        m_host.RemoveFaults();
    });
    Part("close and reopen", [this] { m_host.CloseAndReopen(); });
}

void CWorkday::Line()
{
    if (m_options.growth)
        m_options.growth();
    m_host.ForgetCalls();
    const std::size_t beforeReset = ReadMemory().inUse;
    Part("reset", [this] { m_host.Reset(); });
    QPixmapCache::clear();
    m_desk.saved.clear();
    m_desk.Session().names.clear();
    m_desk.Session().busy.clear();
    m_desk.Session().activations.clear();
    QThreadPool::globalInstance()->waitForDone();
    malloc_trim(0);  // or chance decides how many free pages count as resident
    m_memory.push_back(ReadMemory());
    m_handles.push_back(CountAll());
    const SStretch longest = CSoakApplication::Instance()->TakeLongest();
    const SHandles &handles = m_handles.back();
    const qint64 minutes = m_time.elapsed() / 60000;
    std::printf("| %lld:%02lld | %.1f | %d | %d | %d | %.3f | %.3f | %.3f | %.3f | %d | %d | %d | "
                "%d | %d | %d | "
                "%.1f | %.1f |\n",
                minutes / 60, minutes % 60, (MachineSeconds() - m_machineAtStart) / 60, m_rounds,
                m_tool.Tests(), m_tool.Reports(), InMegabytes(beforeReset),
                InMegabytes(m_memory.back().resident), InMegabytes(m_memory.back().inUse),
                InMegabytes(m_memory.back().outside), handles.files, handles.threads,
                handles.widgets, handles.windows, handles.objects, handles.timers, longest.worked,
                longest.passed / ClockSpeed());
    std::fflush(stdout);
    if (m_options.isVerbose)
        TellChanges();
}

void CWorkday::TellChanges()
{
    const QMap<QString, int> before = std::exchange(m_objects, CountByName());
    for (auto now = m_objects.begin(); now != m_objects.end() && !before.isEmpty(); ++now) {
        const int change = now.value() - before.value(now.key());
        if (change != 0)
            std::fprintf(stderr, "%+d %s\n", change, qPrintable(now.key()));
    }
}

bool CWorkday::IsSteady() const
{
    const std::vector<SGrowth> memory = CompareMemory(m_memory);
    std::printf(memory.empty() ? "\nToo short to compare.\n" : "\n");
    bool isSteady = true;
    for (const SGrowth &growth : memory) {
        // What malloc keeps free behind a reset of 70 MB in small pieces goes up and down by as much.
        const bool isJudged = !growth.isOfAllArenas;
        isSteady = isSteady && (!isJudged || growth.Holds());
        std::printf("Memory %s: %.3f MB after five lines, %.3f MB at the end: %+.2f %%, at most "
                    "%+.0f %%: %s\n",
                    growth.name, InMegabytes(growth.before), InMegabytes(growth.after),
                    growth.percent, kMostGrowth, isJudged ? Word(growth.Holds()) : "not judged");
    }
    for (const SHandleGrowth &growth : CompareHandles(m_handles)) {
        isSteady = isSteady && growth.Holds();
        std::printf("%s: at most %d of the lines 3 to 7, at least %d of the last five: %s\n",
                    growth.name, growth.before, growth.after, Word(growth.Holds()));
    }
    std::printf(
        "No test runs, no box is open: holds\n%.2f hours of the tool's clocks in %.1f minutes of "
        "the machine's\n",
        static_cast<double>(m_time.elapsed()) / 3600e3, (MachineSeconds() - m_machineAtStart) / 60);
    return isSteady;
}
