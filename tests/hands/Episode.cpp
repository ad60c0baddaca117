#include "tests/hands/Episode.h"

#include <cstdio>

#include <QDir>
#include <QHash>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "Vond/VondCore.h"
#include "tests/common/SimJournal.h"
#include "tests/device/ContRxProfiles.h"
#include "tests/hands/rules/CommandRule.h"
#include "tests/hands/rules/FlashRule.h"
#include "tests/hands/rules/HandsRule.h"
#include "tests/hands/rules/RunningRule.h"
#include "tests/hands/seeds/RestRule.h"
#include "tests/hands/seeds/SavedRule.h"
#include "tests/hands/seeds/SeedActions.h"

namespace {

constexpr int kLastDeeds = 15;  // that a report names

// Has the DUT write its flash to the file, as it came from the factory: a download of nothing.
bool WriteFlash()
{
    const auto nothing = std::make_unique<SMMSetCalDataReqV7>();
    nothing->radioKind = 1;
    nothing->version = kVondCalVersion;
    SMMSetCalDataCnfV7 verdict = {};
    return VOND_MMRf_SetCalDataV7_r(1, 1000, nothing.get(), &verdict) == 0 &&
           verdict.status == kVondCalSuccess;
}

}  // namespace

SCounts &SCounts::operator+=(const SCounts &other)
{
    deeds += other.deeds;
    calls += other.calls;
    failedCalls += other.failedCalls;
    commands += other.commands;
    edits += other.edits;
    writes += other.writes;
    return *this;
}

CEpisode::CEpisode(const SSitting &sitting)
    : m_sitting(sitting), m_isEngineer(sitting.user == EUser::Engineer), m_chance(sitting.chance)
{
}

CEpisode::~CEpisode()
{
    m_rules.clear();
    m_desk.reset();
    for (const char *name : {"VOND_SIM_FLASH", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qunsetenv(name);
}

void CEpisode::MakeFolders()
{
    qputenv("VOND_SIM_FLASH", m_folder.filePath("flash").toUtf8());
    qputenv("XDG_DATA_HOME", m_folder.filePath("data").toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_folder.filePath("run").toUtf8());
    QDir(m_folder.path()).mkdir("run");
}

QString CEpisode::Prepare()
{
    MakeFolders();
    const QString profile = m_chance.OneIn(4) ? QString("handset") : Type1Profile();
    m_desk = std::make_unique<CDesk>(profile, m_folder.path());
    m_commands = std::make_unique<CDutCommands>();
    if (!WriteFlash())
        return "the DUT does not write its flash";
    const QString failure = m_desk->Show();
    m_nextCall = VondSim_CallCount();
    MakeRules();
    HearRules();
    return failure;
}

void CEpisode::MakeRules()
{
    m_rules.push_back(std::make_unique<CCommandRule>(*m_desk, *m_commands));
    m_rules.push_back(
        std::make_unique<CFlashRule>(*m_desk, *m_commands, m_folder.filePath("flash")));
    m_rules.push_back(std::make_unique<CHandsRule>(*m_desk));
    m_rules.push_back(std::make_unique<CRunningRule>(*m_desk));
    if (!m_isEngineer)
        return;
    m_rules.push_back(std::make_unique<CRestRule>(*m_desk));
    m_rules.push_back(std::make_unique<CSavedRule>(*m_desk));
}

void CEpisode::HearRules()
{
    m_desk->onBusy = [this](QDockWidget *page, bool isBusy) {
        for (const auto &rule : m_rules)
            rule->OnBusy(page, isBusy);
    };
    m_desk->onStatus = [this](QDockWidget *page, const QString &text) {
        if (m_isVerbose)
            std::fprintf(stderr, "  %s: %s\n", qPrintable(page->windowTitle()), qPrintable(text));
        for (const auto &rule : m_rules)
            rule->OnStatus(page, text);
    };
}

bool CEpisode::Run(const QStringList &skipped, bool isVerbose)
{
    m_skipped = skipped;
    m_isVerbose = isVerbose;
    m_failure = Prepare();
    while (m_failure.isEmpty() && m_counts.deeds < m_sitting.deeds)
        Do(Next());
    for (const SActionRow &action : m_isEngineer ? WayBack() : std::vector<SActionRow>()) {
        if (m_failure.isEmpty())
            Do(action);
    }
    CountRules();
    return m_failure.isEmpty();
}

void CEpisode::CountRules()
{
    for (const auto &rule : m_rules) {
        if (const auto *command = dynamic_cast<CCommandRule *>(rule.get()))
            m_counts.commands = command->Commands();
        if (const auto *flash = dynamic_cast<CFlashRule *>(rule.get())) {
            m_counts.edits = flash->Edits();
            m_counts.writes = flash->Writes();
        }
    }
}

const SActionRow &CEpisode::Next()
{
    static const SActionRow show = {0, ShowTool};
    const bool isGone = m_desk->Windows().isEmpty() || m_desk->Pages().isEmpty();
    if (isGone)
        return m_isEngineer ? WayBack().front() : show;
    return m_isEngineer ? DrawSeedAction(m_chance) : DrawAction(m_chance);
}

bool CEpisode::Do(const SActionRow &action)
{
    for (const auto &rule : m_rules)
        rule->Before(action.kind);
    const SDeed deed = action.act(*m_desk, m_chance);
    ++m_counts.deeds;
    m_failure = deed.failure.isEmpty() ? m_desk->Settle() : deed.failure;
    m_ruleName = "idle";
    m_done.append(QString(deed.words + NewCalls()).replace(m_folder.path(), "~"));
    if (m_isVerbose)
        std::fprintf(stderr, "%d %s\n", m_counts.deeds, qPrintable(m_done.last()));
    for (const auto &rule : m_rules) {
        const QString failure = rule->After(deed);
        if (!m_failure.isEmpty() || failure.isEmpty() || m_skipped.contains(rule->Name()))
            continue;
        m_failure = failure;
        m_ruleName = rule->Name();
    }
    return m_failure.isEmpty();
}

// " -> ContRxV7": what has reached the DUT since the last deed.
QString CEpisode::NewCalls()
{
    QStringList calls;
    SVondSimCall call;
    for (; VondSim_GetCall(m_nextCall, &call) == 0; ++m_nextCall) {
        calls.append(QString(call.function).section('_', 2, 2));
        m_calls.append(QString("%1 %2 %3")
                           .arg(call.function)
                           .arg(call.result)
                           .arg(qHash(RequestOf(m_nextCall), 0)));
        ++m_counts.calls;
        m_counts.failedCalls += call.result != 0;
    }
    return calls.isEmpty() ? QString() : " -> " + calls.join(", ");
}

QString CEpisode::Report() const
{
    return QString("%1\n  %2: %3\n  after %4 deeds, the last ones:\n    %5\n")
        .arg(m_sitting.title, m_ruleName, m_failure)
        .arg(m_counts.deeds)
        .arg(m_done.mid(qMax(0, m_done.size() - kLastDeeds)).join("\n    "));
}
