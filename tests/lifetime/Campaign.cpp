#include "tests/lifetime/Campaign.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

#include <QElapsedTimer>
#include <QProcess>
#include <QThreadPool>
#include <QTimer>

#include "Simulator/VondSim.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr int kLongMs = 60000;

constexpr const char *kActions[] = {"reset", "hide", "unload", "exit"};
constexpr const char *kMoments[] = {"at once", "held", "answered", "later", "dialog", "box"};

// The GUI thread does something else, and handles no events.
void Pause(int microseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.nsecsElapsed() < microseconds * qint64(1000))
        std::this_thread::yield();
}

QByteArray Fault(const char *function, const QByteArray &rest)
{
    return QByteArray(R"({"function": ")") + function + R"(", )" + rest + '}';
}

}  // namespace

CCampaign::CCampaign(uint64_t seed, const QString &folder)
    : m_seed(seed), m_folder(folder), m_tool(folder)
{
}

CCampaign::SRound CCampaign::Draw(int round) const
{
    std::seed_seq seeds{static_cast<uint32_t>(m_seed), static_cast<uint32_t>(m_seed >> 32),
                        static_cast<uint32_t>(round)};
    std::mt19937 random(seeds);
    const auto draw = [&random](int count) {
        return static_cast<int>(random() % static_cast<uint32_t>(count));
    };
    SRound drawn{};
    drawn.request = &AllRequests()[draw(AllRequests().size())];
    // A process of its own costs the most, a hide the least.
    const int action = draw(16);
    drawn.action = action < 1    ? EAction::Exit
                   : action < 4  ? EAction::Unload
                   : action < 10 ? EAction::Reset
                                 : EAction::Hide;
    QVector<EMoment> moments{EMoment::AtOnce, EMoment::Answered, EMoment::Later, EMoment::Later};
    const bool isExit = drawn.action == EAction::Exit;
    if (drawn.request->function && !isExit)
        moments += {EMoment::Held, EMoment::Held};
    if (drawn.request->function && drawn.request->way == EWay::Button && !isExit)
        moments += EMoment::Box;
    if (drawn.request->hasDialog)
        moments += EMoment::Dialog;
    drawn.moment = moments[draw(moments.size())];
    drawn.turns = draw(30);
    drawn.pause = draw(4) == 0 ? draw(20000) : draw(500);
    drawn.delay = draw(2) == 0 ? 0 : draw(isExit ? 60 : 10);
    drawn.end = static_cast<EEnd>(draw(static_cast<int>(EEnd::Count)));
    return drawn;
}

void CCampaign::Run(int number)
{
    const SRound round = Draw(number);
    const QString failure = round.action == EAction::Exit ? RunChild(number) : RunRound(round);
    STally &tally =
        m_tallies[{static_cast<int>(round.request - AllRequests().constData()), round.action}];
    ++tally.run;
    if (failure.isEmpty()) {
        ++tally.held;
        return;
    }
    std::printf("round %d: %s %s, %s, %s: %s\n", number, round.request->page, round.request->name,
                kActions[static_cast<int>(round.action)], kMoments[static_cast<int>(round.moment)],
                qPrintable(failure));
    std::fflush(stdout);
}

QString CCampaign::RunRound(const SRound &round)
{
    QString failure = m_tool.Prepare(*round.request);
    if (failure.isEmpty())
        failure = MakeAndAct(round);
    VondSim_ClearFaults();
    if (round.request->function)
        VondSim_Release(round.request->function);
    m_tool.Boxes().onBox = nullptr;
    if (failure.isEmpty())
        failure = Look(round);
    if (failure.isEmpty())
        failure = RunAgain(*round.request);
    return failure;
}

QString CCampaign::MakeAndAct(const SRound &round)
{
    const SRequest &request = *round.request;
    const auto act = [this, &round] { Act(round); };
    m_hasActed = false;
    if (round.delay > 0)
        VondSim_AddFault(
            Fault("*", R"("kind": "delay", "ms": )" + QByteArray::number(round.delay)));
    if (round.moment == EMoment::Held)
        VondSim_Hold(request.function);
    if (round.moment == EMoment::Box) {
        VondSim_AddFault(Fault(request.function, R"("kind": "fail", "result": 7)"));
        m_tool.Boxes().onBox = act;
    }
    if (request.way == EWay::Launch) {
        Launch(round);
        return {};
    }
    m_tool.Make(request, round.moment == EMoment::Dialog ? act : std::function<void()>());
    switch (round.moment) {
    case EMoment::AtOnce:
    case EMoment::Dialog:
        break;
    case EMoment::Held:
        if (VondSim_WaitUntilHeld(request.function, kLongMs) == 0)
            return "the DUT is not asked";
        break;
    case EMoment::Answered:
        QThreadPool::globalInstance()->waitForDone();
        break;
    case EMoment::Later:
        for (int turn = 0; turn < round.turns; ++turn)
            QCoreApplication::processEvents();
        Pause(round.pause);
        break;
    case EMoment::Box:
        WaitUntil([this] { return m_hasActed; }, 5000);  // a fetch shows no box
        break;
    }
    Act(round);
    return {};
}

// The window waits for its pages in loops of its own; the action comes from inside them.
void CCampaign::Launch(const SRound &round)
{
    const SRequest &request = *round.request;
    const bool isList = !*request.page;
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const bool isThere = isList || m_tool.Page(request.page);
        const bool isLate = m_tool.Session()->StatusBar() == "Init done.";
        if (isLate || (isThere && ++turns > (round.moment == EMoment::AtOnce ? 0 : round.turns))) {
            timer.stop();
            Act(round);
        }
    });
    timer.start(0);
    m_tool.Make(request);
    if (isList && round.moment == EMoment::AtOnce)
        Act(round);
    else if (isList && round.moment == EMoment::Answered)
        QThreadPool::globalInstance()->waitForDone();
    else if (isList && round.moment == EMoment::Held)
        VondSim_WaitUntilHeld(request.function, kLongMs);
    // A show that is still to come would meet the next round.
    WaitUntil([this] { return m_hasActed && !m_isShowDue; }, kLongMs);
}

void CCampaign::Act(const SRound &round)
{
    if (m_hasActed)
        return;
    m_hasActed = true;
    switch (round.action) {
    case EAction::Reset:
        (*m_tool.Session())->ResetPlugin();
        break;
    case EAction::Hide:
        (*m_tool.Session())->HidePlugin();
        // A hidden window's pages wait for its show, in the window's own event loop.
        if (round.request->way == EWay::Launch) {
            m_isShowDue = true;
            QTimer::singleShot(round.turns, m_tool.Session(), [this] {
                m_isShowDue = false;
                (*m_tool.Session())->ShowPlugin();
            });
        }
        break;
    case EAction::Unload:
        m_tool.Unload();
        break;
    case EAction::Exit:
        if (m_endsProcess && round.end == EEnd::Exit)
            std::exit(0);
        break;
    case EAction::Count:
        break;
    }
}

QString CCampaign::Look(const SRound &round)
{
    QString failure = m_tool.Settle();
    if (round.action == EAction::Unload) {
        if (failure.isEmpty() && m_tool.Session()->Window())
            failure = "the window is still there";
        // A stop that met the fault of the request's own is made up for by the next session.
        if (failure.isEmpty() && round.moment != EMoment::Box && *VondSim_RunningTest())
            failure = QString("%1 still runs").arg(VondSim_RunningTest());
        m_tool.DropSession();
        return failure;
    }
    // The reset's stop met the fault of the request's own.
    if (round.action == EAction::Reset && round.moment == EMoment::Box &&
        round.request->before == EBefore::Running && failure.isEmpty())
        failure = m_tool.RfOff();
    if (failure.isEmpty() && round.action == EAction::Reset && *VondSim_RunningTest())
        failure = QString("%1 still runs").arg(VondSim_RunningTest());
    if (failure.isEmpty() && round.action == EAction::Reset && m_tool.HasPages())
        failure = "pages are still there";
    if (failure.isEmpty() && round.action == EAction::Hide && round.request->way != EWay::Launch &&
        m_tool.Session()->Window()->isVisible())
        failure = "the window is still shown";
    return failure;
}

QString CCampaign::RunAgain(const SRequest &request)
{
    if (m_tool.Session())
        (*m_tool.Session())->HidePlugin();
    if (request.way == EWay::Launch)
        return m_tool.PrepareAnyPage();
    QString failure = m_tool.Prepare(request);
    if (!failure.isEmpty())
        return "again: " + failure;
    const int boxes = m_tool.Boxes().Seen().size();
    m_tool.Make(request);
    failure = m_tool.Settle();
    if (!failure.isEmpty())
        return "again: " + failure;
    if (m_tool.Boxes().Seen().size() != boxes)
        return "again: " + m_tool.Boxes().Seen().last().title + ' ' +
               m_tool.Boxes().Seen().last().informative;
    return m_tool.IsUsable(request.page) ? QString() : "the page is not usable";
}

QString CCampaign::RunChild(int number) const
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Whoever calls exit() frees nothing.
    environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":detect_leaks=0");
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {"--end", QString::number(number), "--seed", QString::number(m_seed)});
    if (!child.waitForFinished(2 * kLongMs)) {
        child.kill();
        child.waitForFinished();
        return "the process does not end";
    }
    // A sanitizer that speaks of another thread may be overtaken by the end of the process.
    const QByteArray words = child.readAllStandardError();
    std::fwrite(words.constData(), 1, static_cast<size_t>(words.size()), stderr);
    if (words.contains("Sanitizer"))
        return "a sanitizer speaks as the process ends";
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return QString("the process ends with %1").arg(child.exitCode());
    return {};
}

void CCampaign::RunToTheEnd(int number)
{
    SRound round = Draw(number);
    round.action = EAction::Exit;
    m_endsProcess = true;
    // A pool that the host used first is destroyed after everything that the tool made.
    QThreadPool::globalInstance()->start([] {});
    const QString failure = m_tool.Prepare(*round.request);
    if (!failure.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(failure));
        std::_Exit(3);
    }
    MakeAndAct(round);
    if (round.end == EEnd::Unload)
        m_tool.Unload();
    else
        m_tool.Abandon();
}

bool CCampaign::Print() const
{
    STally all;
    std::printf("%-30s %-16s", "page", "request");
    for (const char *action : kActions)
        std::printf(" %14s", action);
    std::printf("\n");
    for (int row = 0; row < AllRequests().size(); ++row) {
        const SRequest &request = AllRequests()[row];
        std::printf("%-30s %-16s", *request.page ? request.page : "(window)", request.name);
        for (int action = 0; action < static_cast<int>(EAction::Count); ++action) {
            const auto found = m_tallies.find({row, static_cast<EAction>(action)});
            const STally tally = found == m_tallies.end() ? STally() : found->second;
            std::printf(" %14s", qPrintable(QString("%1 / %2").arg(tally.run).arg(tally.held)));
            all.run += tally.run;
            all.held += tally.held;
        }
        std::printf("\n");
    }
    std::printf("cases run %d, held %d\n", all.run, all.held);
    std::fflush(stdout);
    return all.run == all.held;
}
