#include "tests/campaign/Campaign.h"

#include "Simulator/VondSim.h"
#include "tests/campaign/LateAnswer.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr int kPatienceMs = 5000;
// Between two turns of a loop that turns every millisecond, on a busy machine.
constexpr int kLongestStandMs = 500;

}  // namespace

QMap<QString, int> CalledFunctions()
{
    QMap<QString, int> calls;
    for (const SJournalCall &entry : Journal())
        ++calls[entry.call.function];
    return calls;
}

CCampaign::CCampaign(CTally &tally, const SCampaignOptions &options)
    : m_tally(tally), m_options(options)
{
}

QString CCampaign::Name(const SRequest &request) const
{
    return QString("%1: %2").arg(m_page->name, request.name);
}

bool CCampaign::Restart()
{
    m_driver.reset();
    m_driver.reset(new CPageDriver(*m_page));
    return m_driver->Ready() && m_driver->Home();
}

// What went wrong in one case is not to spoil the next.
void CCampaign::StartAfresh()
{
    if (!Restart())
        m_tally.Complain(QString("%1 does not come up again").arg(m_page->name));
}

void CCampaign::RunPage(const SPage &page)
{
    m_page = &page;
    if (!Restart()) {
        m_tally.Complain(QString("%1 does not come up").arg(page.name));
        return;
    }
    for (int i = 0; i < page.requestCount; ++i)
        RunRequest(page.requests[i]);
    m_driver.reset();
}

// A good run first: it warms up what is made once, and tells what the request calls.
void CCampaign::RunRequest(const SRequest &request)
{
    if (!m_driver->BringTo(request.needs)) {
        m_tally.Complain(Name(request) + ": the page cannot be brought there");
        return;
    }
    VondSim_ClearJournal();
    m_driver->Act(request);
    const QString problem = m_driver->Await(request, GoodWords(request));
    const QMap<QString, int> calls = CalledFunctions();
    if (!problem.isEmpty() || calls.isEmpty() || !m_driver->Home()) {
        m_tally.Complain(Name(request) + ": no good run, " + problem);
        return;
    }
    m_living = Living(m_driver->Session().Window());
    for (auto row = calls.begin(); row != calls.end(); ++row)
        m_tally.Reach(Name(request), row.key(), row.value());
    if (m_options.hasFaults)
        RunCases(request, calls);
}

void CCampaign::RunCases(const SRequest &request, const QMap<QString, int> &calls)
{
    for (auto row = calls.begin(); row != calls.end(); ++row) {
        const SFunction *function = FindFunction(row.key().toStdString());
        for (const SDoorFault &fault : FaultsOf(*function, row.value(), m_options.noises))
            RunFault(request, fault);
    }
}

void CCampaign::RunFault(const SRequest &request, const SDoorFault &fault)
{
    bool isTextAskedFor = false;
    QString problem;
    if (!m_driver->BringTo(request.needs))
        problem = "the page cannot be brought there";
    else
        problem = HoldsUnder(request, fault, isTextAskedFor);
    ClearDoor();
    if (fault.kind == EFault::Noise)
        m_driver->ForgetTest();
    if (problem.isEmpty())
        problem = HoldsBehind(request);
    m_tally.Book({Name(request), fault.function->name.data(), fault.kind, fault.Name()}, problem);
    if (!problem.isEmpty())
        StartAfresh();
    if (fault.kind != EFault::Fail || !isTextAskedFor)
        return;
    for (const SDoorFault &text : TextFaultsOf(fault))
        RunFault(request, text);
}

QString CCampaign::HoldsUnder(const SRequest &request, const SDoorFault &fault,
                              bool &isTextAskedFor)
{
    VondSim_ClearJournal();
    Lay(fault, m_options.delay);
    std::unique_ptr<CLateAnswer> late;
    if (fault.kind == EFault::Late || fault.kind == EFault::LateText)
        late.reset(new CLateAnswer(fault, m_options.delay, [&] {
            const bool isTold = request.way == EWay::Tick || m_driver->IsBusy();
            return isTold ? QString() : QString("the host is not told that the tool is busy");
        }));
    m_driver->Act(request);
    // What noise says is known when all the calls have been made.
    if (fault.kind == EFault::Noise && request.way != EWay::Tick)
        WaitUntil([&] { return m_driver->IsAnswered() && m_driver->IsTold(); }, kPatienceMs);
    SWords words = WordsOf(*m_page, request, fault, Journal());
    if (words.isEither && m_driver->Session().StatusBar() != words.status)
        words = AnyFailureWords(request);
    const QString problem = m_driver->Await(request, words);
    isTextAskedFor = CountCalls("VOND_GetErrorString") > 0;
    return problem.isEmpty() && late ? late->Problem() : problem;
}

QString CCampaign::HoldsBehind(const SRequest &request)
{
    if (!m_driver->BringTo(request.needs))
        return "behind it the page cannot be brought back";
    m_driver->Act(request);
    const QString problem = m_driver->Await(request, GoodWords(request));
    if (!problem.isEmpty())
        return "behind it no good run: " + problem;
    if (!m_driver->Home())
        return "behind it the page does not come home";
    const SLiving living = Living(m_driver->Session().Window());
    if (!(living == m_living))
        return "behind it " + living.Text() + ", not " + m_living.Text();
    return {};
}
