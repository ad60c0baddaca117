#include "tests/hands/Episode.h"

#include <cstdio>

#include <QtTest>

#include "Simulator/VondSim.h"
#include "Vond/VondCore.h"
#include "tests/device/ContRxProfiles.h"
#include "tests/hands/rules/CommandRule.h"
#include "tests/hands/rules/FlashRule.h"
#include "tests/hands/rules/HandsRule.h"
#include "tests/hands/rules/RunningRule.h"

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

CEpisode::CEpisode(uint64_t seed, int number, int deeds)
    : m_title(QString("--seed %1 --first %2 --episodes 1").arg(seed).arg(number)), m_deeds(deeds),
      m_chance(seed * 1000003 + static_cast<uint64_t>(number))
{
}

CEpisode::~CEpisode()
{
    m_rules.clear();
    m_desk.reset();
    qunsetenv("VOND_SIM_FLASH");
}

QString CEpisode::Prepare()
{
    const QString flash = m_folder.filePath("flash");
    qputenv("VOND_SIM_FLASH", flash.toUtf8());
    const QString profile = m_chance.OneIn(4) ? QString("handset") : Type1Profile();
    m_desk = std::make_unique<CDesk>(profile, m_folder.path());
    m_commands = std::make_unique<CDutCommands>();
    if (!WriteFlash())
        return "the DUT does not write its flash";
    const QString failure = m_desk->Show();
    m_nextCall = VondSim_CallCount();
    m_rules.push_back(std::make_unique<CCommandRule>(*m_desk, *m_commands));
    m_rules.push_back(std::make_unique<CFlashRule>(*m_desk, *m_commands, flash));
    m_rules.push_back(std::make_unique<CHandsRule>(*m_desk));
    m_rules.push_back(std::make_unique<CRunningRule>(*m_desk));
    m_desk->onBusy = [this](QDockWidget *page, bool isBusy) {
        for (const auto &rule : m_rules)
            rule->OnBusy(page, isBusy);
    };
    m_desk->onStatus = [this](QDockWidget *page, const QString &text) {
        for (const auto &rule : m_rules)
            rule->OnStatus(page, text);
    };
    return failure;
}

bool CEpisode::Run(const QStringList &skipped, bool isVerbose)
{
    m_skipped = skipped;
    m_failure = Prepare();
    while (m_failure.isEmpty() && m_counts.deeds < m_deeds)
        Do(isVerbose);
    for (const auto &rule : m_rules) {
        if (const auto *command = dynamic_cast<CCommandRule *>(rule.get()))
            m_counts.commands = command->Commands();
        if (const auto *flash = dynamic_cast<CFlashRule *>(rule.get())) {
            m_counts.edits = flash->Edits();
            m_counts.writes = flash->Writes();
        }
    }
    return m_failure.isEmpty();
}

bool CEpisode::Do(bool isVerbose)
{
    const bool isGone = m_desk->Windows().isEmpty() || m_desk->Pages().isEmpty();
    const SActionRow action = isGone ? SActionRow{0, ShowTool} : DrawAction(m_chance);
    for (const auto &rule : m_rules)
        rule->Before(action.kind);
    const SDeed deed = action.act(*m_desk, m_chance);
    ++m_counts.deeds;
    m_failure = deed.failure.isEmpty() ? m_desk->Settle() : deed.failure;
    m_ruleName = "idle";
    m_done.append(deed.words + NewCalls());
    if (isVerbose)
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
    for (; VondSim_GetCall(m_nextCall, &call) == 0; ++m_nextCall)
        calls.append(QString(call.function).section('_', 2, 2));
    return calls.isEmpty() ? QString() : " -> " + calls.join(", ");
}

QString CEpisode::Report() const
{
    return QString("%1\n  %2: %3\n  after %4 deeds, the last ones:\n    %5\n")
        .arg(m_title, m_ruleName, m_failure)
        .arg(m_counts.deeds)
        .arg(m_done.mid(qMax(0, m_done.size() - kLastDeeds)).join("\n    "));
}
