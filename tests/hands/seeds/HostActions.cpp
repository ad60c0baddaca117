#include "Simulator/VondSim.h"
#include "tests/hands/seeds/SeedActions.h"

// Whatever a host may ask at any time. Its launch query waits for the target, so no call is held then.
SDeed CallAsHost(CDesk &desk, CChance &chance)
{
    switch (chance.Below(5)) {
    case 0: {
        desk.Release();
        const SPluginToolLaunchRequirement answer = desk.Tool()->QueryLaunchRequirement();
        const bool isTold = answer.isSupport == answer.unsupportReason.isEmpty();
        return {SDeed::Other,
                QString("launch query: ") + (answer.isSupport ? "yes" : "no"),
                {},
                isTold ? QString() : "its reason and its answer do not fit"};
    }
    case 1:
        desk.Tool()->HostCheck(1, 2);
        return {SDeed::Other, "HostCheck"};
    case 2:
        desk.Tool()->HostNotify(3);
        desk.Tool()->HostNotifyAfter(3);
        return {SDeed::Other, "HostNotify"};
    case 3:
        desk.Tool()->HidePlugin();
        return {SDeed::Other, "Hide, Show", {}, (MendDut(desk, chance), desk.Show())};
    default:
        return {SDeed::Other, "note " + desk.Tool()->GetPluginNote().left(10)};
    }
}

// The tool starts anew where its first questions fail; on a good DUT it must be whole again.
SDeed ShowOnBrokenDut(CDesk &desk, CChance &chance)
{
    SDeed deed{SDeed::Other, "Reset, Show on a broken DUT"};
    desk.Release();
    ResetTool(desk, chance);
    if (chance.OneIn(3))
        PullPlug(desk, chance);
    else
        AddManyFaults(desk, chance);
    desk.Tool()->ShowPlugin();
    deed.failure = desk.Settle();
    MendDut(desk, chance);
    ResetTool(desk, chance);
    if (deed.failure.isEmpty())
        deed.failure = desk.Settle();
    if (deed.failure.isEmpty())
        deed.failure = desk.Show();
    return deed;
}
