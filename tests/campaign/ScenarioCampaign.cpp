#include "tests/campaign/ScenarioCampaign.h"

#include <optional>

#include <QElapsedTimer>
#include <QTimer>

#include "Simulator/VondSim.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr char kSlow[] = "slow-dut";
// Rounds of two seconds.
constexpr int kAnswerMs = 60000;
// Of the event loop, while a call takes a tenth of a second or more. A loop that waited for the call
// would turn for the end of the request alone.
constexpr int kTurns = 10;
// A tenth of a second is not told from a busy machine; a start or a round is.
constexpr int kLongestStandMs = 900;

// How often a request is made under a scenario: as often as its steps need.
int TimesOf(const SPage &page, const SRequest &request, const QByteArray &scenario)
{
    if (scenario == kSlow)
        return 1;
    if (qstrcmp(page.group, "cal") == 0)
        return 3;
    const bool isReading = request.needs == EState::Running && request.leads == EState::Running;
    return isReading ? 12 : 4;
}

bool IsToFail(const QByteArray &scenario)
{
    const QByteArray text = VondSim_BuiltinScenarioText(scenario.constData());
    return text.contains("\"fail\"") || text.contains("\"plugged\"") || text.contains("powerCut");
}

// What the DUT answered amiss first, as a fault.
std::optional<SDoorFault> FaultInJournal()
{
    for (const SJournalCall &call : Journal()) {
        const SFunction *function = FindFunction(call.call.function);
        if (call.call.result != 0)
            return SDoorFault{
                .function = function, .kind = EFault::Fail, .result = call.call.result};
        if (call.call.status != 0)
            return SDoorFault{
                .function = function, .kind = EFault::Status, .status = call.call.status};
    }
    return std::nullopt;
}

int TornRecords()
{
    int torn = 0;
    SVondSimFlashItem item;
    for (uint32_t i = 0; VondSim_GetFlashItem(i, &item) == 0; ++i)
        torn += static_cast<int>(item.tornCount);
    return torn;
}

// Counts the turns of the event loop, and the longest time between two.
class CLoopWatch
{
public:
    CLoopWatch()
    {
        m_sinceTurn.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            ++m_turns;
            m_longestMs = qMax(m_longestMs, m_sinceTurn.restart());
        });
        m_timer.start(1);
    }
    QString Problem() const
    {
        if (m_turns < kTurns)
            return QString("the loop turned %1 times beside slow calls").arg(m_turns);
        const qint64 longest = qMax(m_longestMs, m_sinceTurn.elapsed());
        return longest < kLongestStandMs ? QString()
                                         : QString("the loop stood for %1 ms").arg(longest);
    }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceTurn;
    qint64 m_longestMs = 0;
    int m_turns = 0;
};

class CScenarioCampaign : public CCampaign
{
public:
    CScenarioCampaign(CTally &tally, const SCampaignOptions &options) : CCampaign(tally, options) {}

    // Scenarios under which a request failed.
    const QList<QByteArray> &Failing() const { return m_failing; }

protected:
    void RunCases(const SRequest &request, const QMap<QString, int> &) override
    {
        for (uint32_t i = 0; VondSim_ScenarioName(i); ++i)
            RunScenario(request, VondSim_ScenarioName(i));
    }

private:
    void RunScenario(const SRequest &request, const QByteArray &scenario);
    QString HoldsUnder(const SRequest &request, int times);
    QString Make(const SRequest &request);

    QByteArray m_scenario;
    QList<QByteArray> m_failing;
    int m_made = 0;  // requests of the case
    int m_failed = 0;
};

void CScenarioCampaign::RunScenario(const SRequest &request, const QByteArray &scenario)
{
    m_scenario = scenario;
    m_made = m_failed = 0;
    QString problem;
    if (!Driver().BringTo(request.needs))
        problem = "the page cannot be brought there";
    else if (VondSim_SetScenario(scenario.constData()) != 0)
        problem = "the scenario is not taken";
    else
        problem = HoldsUnder(request, TimesOf(Page(), request, scenario));
    VondSim_SetScenario("");
    // A DUT that lost its plug has lost its test; Stop lets the page follow.
    if (problem.isEmpty() && *VondSim_RunningTest() == 0 && !Driver().BringTo(EState::Idle))
        problem = "behind it Stop is no good";
    if (problem.isEmpty() && Driver().Exported() != Driver().ExportedFirst())
        problem = "behind it the page exports other data";
    if (problem.isEmpty())
        problem = HoldsBehind(request);
    if (problem.isEmpty() && request.failed == QString("Write data to target failed.") &&
        TornRecords() > 0)
        problem = "behind it a good write leaves a torn record";
    if (m_failed > 0)
        m_failing.append(scenario);
    Tally().BookScenario(scenario, Name(request), m_made, m_failed, problem);
    if (!problem.isEmpty())
        StartAfresh();
}

// The request, and what leads back, until the DUT has gone for good.
QString CScenarioCampaign::HoldsUnder(const SRequest &request, int times)
{
    for (int i = 0; i < times; ++i) {
        QString problem = Make(request);
        for (int tries = 0; problem.isEmpty() && Driver().State() != request.needs; ++tries) {
            if (tries == times)
                return {};
            problem = Make(Driver().StartOrStop(request.needs));
        }
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QString CScenarioCampaign::Make(const SRequest &request)
{
    const bool isCal = !Page().hasTest && qstrcmp(Page().group, "cal") == 0;
    const QString entries = isCal ? QString() : Driver().Entries();
    const int rows = Driver().Rows();
    VondSim_ClearJournal();
    ++m_made;
    const CLoopWatch watch;
    Driver().Act(request);
    const bool isAnswered = WaitUntil(
        [&] { return Driver().IsTold() && (request.way == EWay::Tick || Driver().IsAnswered()); },
        kAnswerMs);
    if (!isAnswered)
        return "no answer";
    const QString stood = m_scenario == kSlow ? watch.Problem() : QString();
    const std::optional<SDoorFault> fault = FaultInJournal();
    m_failed += fault.has_value();
    const QString number = QString("request %1 of the case, %2: ").arg(m_made).arg(request.name);
    const QString problem = Driver().Await(
        request, fault ? WordsOf(Page(), request, *fault, Journal()) : GoodWords(request));
    if (!problem.isEmpty() || !stood.isEmpty())
        return number + (problem.isEmpty() ? stood : problem);
    if (fault && !isCal && Driver().Entries() != entries)
        return number + "its failure has changed what was entered";
    if (fault && Driver().Rows() < rows)
        return number + "its failure has taken results away";
    return {};
}

}  // namespace

void RunScenarioCampaign(CTally &tally, const SCampaignOptions &options)
{
    CScenarioCampaign campaign(tally, options);
    for (int i = 0; i < kPageCount; ++i)
        campaign.RunPage(kPages[i]);
    for (uint32_t i = 0; options.hasFaults && VondSim_ScenarioName(i); ++i) {
        const QByteArray scenario = VondSim_ScenarioName(i);
        if (IsToFail(scenario) != campaign.Failing().contains(scenario))
            tally.Complain(QString("scenario %1: requests are to fail or not, and do the other")
                               .arg(QString(scenario)));
    }
}
