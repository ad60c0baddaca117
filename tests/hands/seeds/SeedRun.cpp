#include "tests/hands/seeds/SeedRun.h"

#include <cstdio>
#include <map>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSettings>
#include <QWidget>

#include "tests/hands/Episode.h"
#include "tests/hands/seeds/ReportClock.h"

namespace {

constexpr int kTellEach = 20;  // seeds
constexpr int kFileSlack = 4;  // the process's own open files come and go

// What is left behind a session that has ended.
struct SRest
{
    int windows = 0;
    int files = 0;
};

SRest RestOfSession()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return {QApplication::topLevelWidgets().size(),
            int(QDir("/proc/self/fd")
                    .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                    .size())};
}

// At once: a run may be cut off.
void Say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

// The tool remembers things of a user; each seed begins without.
void ForgetSettings()
{
    QSettings settings(qEnvironmentVariable("XDG_CONFIG_HOME") + "/quorlin-rf/settings.ini",
                       QSettings::IniFormat);
    settings.clear();
    settings.sync();
}

// Where two runs part: "step 12: ..., ..."; empty when they don't.
QString Parting(const char *what, const QStringList &first, const QStringList &second)
{
    int at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at])
        ++at;
    if (at == first.size() && at == second.size())
        return {};
    return QString("%1 %2 is \"%3\" and then \"%4\"")
        .arg(what)
        .arg(at + 1)
        .arg(first.value(at), second.value(at));
}

class CSeedRun
{
public:
    explicit CSeedRun(const SSeedOptions &options) : m_options(options) {}

    bool Run();

private:
    void RunSeed(uint64_t seed);
    std::unique_ptr<CEpisode> Sit(uint64_t seed);
    void CheckGrowth(uint64_t seed);
    void Fail(const QString &rule, const QString &report);

    const SSeedOptions &m_options;
    const CReportClock m_clock;
    std::map<QString, int> m_failures;  // by rule
    SCounts m_counts;
    SRest m_first;  // behind the first seed
    int m_seeds = 0;
    int m_failureCount = 0;
};

void CSeedRun::Fail(const QString &rule, const QString &report)
{
    ++m_failures[rule];
    ++m_failureCount;
    Say(report);
}

std::unique_ptr<CEpisode> CSeedRun::Sit(uint64_t seed)
{
    ForgetSettings();
    auto episode = std::make_unique<CEpisode>(
        SSitting{QString("--seeds %1").arg(seed), seed, m_options.steps, EUser::Engineer});
    if (!episode->Run(m_options.skipped, m_options.isVerbose))
        Fail(episode->RuleName(), episode->Report());
    m_counts += episode->Counts();
    return episode;
}

void CSeedRun::RunSeed(uint64_t seed)
{
    const QString number = QString("--seeds %1 --twice: ").arg(seed);
    std::unique_ptr<CEpisode> episode = Sit(seed);
    const QStringList steps = episode->Steps();
    const QStringList calls = episode->Calls();
    episode.reset();
    if (m_options.isTwice) {
        episode = Sit(seed);
        for (const QString &parting :
             {Parting("step", steps, episode->Steps()), Parting("call", calls, episode->Calls())}) {
            if (!parting.isEmpty())
                Fail("replay", number + parting);
        }
        episode.reset();
    }
    ++m_seeds;
    CheckGrowth(seed);
}

void CSeedRun::CheckGrowth(uint64_t seed)
{
    const SRest rest = RestOfSession();
    if (m_seeds == 1)
        m_first = rest;
    if (rest.windows > m_first.windows || rest.files > m_first.files + kFileSlack)
        Fail("growth", QString("behind --seeds %1: %2 windows and %3 open files, %4 and %5 before")
                           .arg(seed)
                           .arg(rest.windows)
                           .arg(rest.files)
                           .arg(m_first.windows)
                           .arg(m_first.files));
}

bool CSeedRun::Run()
{
    QElapsedTimer timer;
    timer.start();
    uint64_t seed = m_options.first;
    for (; seed <= m_options.last; ++seed) {
        if (m_options.minutes > 0 && double(timer.elapsed()) > m_options.minutes * 60000)
            break;
        RunSeed(seed);
        if (m_seeds % kTellEach == 0)
            Say(QString("up to %1: %2 failures").arg(seed).arg(m_failureCount));
    }
    std::printf("%d seeds, %d steps, %d calls of the DUT, %d of them failed, %d commands compared, "
                "%d edits, %d writes of the flash\n",
                m_seeds, m_counts.deeds, m_counts.calls, m_counts.failedCalls, m_counts.commands,
                m_counts.edits, m_counts.writes);
    if (seed <= m_options.last)
        std::printf("to go on: --seeds %llu..%llu\n", static_cast<unsigned long long>(seed),
                    static_cast<unsigned long long>(m_options.last));
    for (const auto &[rule, count] : m_failures)
        std::printf("%s: %d\n", qPrintable(rule), count);
    return m_failures.empty();
}

}  // namespace

bool ParseSeeds(const QString &text, SSeedOptions &options)
{
    const QRegularExpressionMatch match =
        QRegularExpression("^(\\d+)(?:\\.\\.(\\d+))?$").match(text);
    options.first = match.captured(1).toULongLong();
    options.last = match.captured(2).isEmpty() ? options.first : match.captured(2).toULongLong();
    return match.hasMatch() && options.first <= options.last;
}

bool RunSeeds(const SSeedOptions &options)
{
    return CSeedRun(options).Run();
}
