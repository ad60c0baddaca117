#include "tests/campaign/LaunchCampaign.h"

#include <thread>

#include "Simulator/VondSim.h"
#include "tests/common/SimJournal.h"

namespace {

constexpr char kName[] = "launch query";

struct SLaunchWords
{
    EFunction function;
    const char *reason;  // empty: the tool runs all the same
};

// What a failing call is answered with. Without the connection's word the capabilities decide.
constexpr SLaunchWords kReasons[] = {
    {EFunction::ModemActiveIndex, ""},
    {EFunction::ModemService, ""},
    {EFunction::QueryFunctionSupported, "Not Support due to without any this RAT info from SW."},
    {EFunction::MultiModeCapability,
     "We cannot get its support status: Failed to get multi-RAT world mode ID info."},
    {EFunction::NrCapability, "Support this RAT but it failed to get its capability info."},
    {EFunction::RouteConfig, "Support this RAT but it failed to get CA capability info."},
};

// What noise in these answers may bring about beside a good answer; in the others it says nothing.
constexpr SLaunchWords kNoiseReasons[] = {
    {EFunction::ModemService, "It is C2K modem now."},
    {EFunction::MultiModeCapability, "Not Support due to without any this RAT info from SW."},
    {EFunction::MultiModeCapability, "Not support this RAT from SW multi-RAT world mode ID info."},
};

QString Answer(const SPluginToolLaunchRequirement &answer)
{
    return answer.isSupport == answer.unsupportReason.isEmpty()
               ? answer.unsupportReason
               : QString("support %1, but: %2").arg(answer.isSupport).arg(answer.unsupportReason);
}

QStringList Wanted(const SDoorFault &fault)
{
    QStringList reasons;
    if (fault.kind == EFault::Late)
        return {QString()};
    if (fault.kind == EFault::Noise) {
        reasons.append(QString());
        for (const SLaunchWords &row : kNoiseReasons) {
            if (row.function == fault.function->id)
                reasons.append(row.reason);
        }
        return reasons;
    }
    for (const SLaunchWords &row : kReasons) {
        if (row.function == fault.function->id)
            reasons.append(row.reason);
    }
    return reasons;
}

// The query waits for the DUT on the thread of its caller, so another one opens the gate.
SPluginToolLaunchRequirement Query(const CPluginSession &session, const SDoorFault &fault,
                                   EDelay delay)
{
    if (fault.kind != EFault::Late || delay == EDelay::Clock)
        return session->QueryLaunchRequirement();
    const QByteArray function = WaitingFunction(fault);
    std::thread gate([&function] {
        VondSim_WaitUntilHeld(function.constData(), 20000);
        VondSim_Release(function.constData());
    });
    const SPluginToolLaunchRequirement answer = session->QueryLaunchRequirement();
    gate.join();
    return answer;
}

QString Holds(CPluginSession &session, const SDoorFault &fault, const SCampaignOptions &options)
{
    session->ResetPlugin();
    Lay(fault, options.delay);
    const QString answer = Answer(Query(session, fault, options.delay));
    ClearDoor();
    const QStringList wanted = Wanted(fault);
    if (!wanted.contains(answer))
        return QString("says \"%1\", not \"%2\"").arg(answer, wanted.join("\" or \""));
    // What was read wrongly stands until the reset.
    const SLiving living = Living(session.Window());
    session->ResetPlugin();
    if (const QString good = Answer(session->QueryLaunchRequirement()); !good.isEmpty())
        return "behind it: " + good;
    if (!(Living(session.Window()) == living))
        return "behind it the tool has grown";
    return {};
}

}  // namespace

void RunLaunchCampaign(CTally &tally, const SCampaignOptions &options)
{
    CPluginSession session;
    VondSim_ClearJournal();
    if (!Answer(session->QueryLaunchRequirement()).isEmpty()) {
        tally.Complain("launch query: no good run");
        return;
    }
    const QMap<QString, int> calls = CalledFunctions();
    for (auto row = calls.begin(); row != calls.end(); ++row) {
        tally.Reach(kName, row.key(), row.value());
        if (!options.hasFaults)
            continue;
        const SFunction *function = FindFunction(row.key().toStdString());
        for (const SDoorFault &fault : FaultsOf(*function, row.value(), options.noises)) {
            tally.Book({kName, row.key(), fault.kind, fault.Name()},
                       Holds(session, fault, options));
        }
    }
}
