#include "Simulator/VondSim.h"
#include "tests/hands/actions/Actions.h"

namespace {

// What requests call; the reads of the init flow stay good, so that every page has its document.
constexpr const char *kCalls[] = {
    "VOND_MMRf_ContRxV7_r",
    "VOND_MMRf_RssiV7_r",
    "VOND_MMRf_GainSearchV7_r",
    "VOND_MMRf_SingleToneTxV7_r",
    "VOND_MMRf_GetPdValueV7_r",
    "VOND_MMRf_TestStopV7_r",
    "VOND_NRf_RsrpV7_r",
    "VOND_NRf_PuschTxV7_r",
    "VOND_NRf_GetDlFreqV7_r",
    "VOND_NRf_GetMixRxReportV7_r",
    "VOND_NRf_ResetMixRxReportV7_r",
    "VOND_NRf_TestStop_r",
};
constexpr const char *kCalCalls[] = {
    "VOND_MMRf_GetCalBlkInfoV7_r",
    "VOND_MMRf_GetCalDataV7_r",
    "VOND_MMRf_SetCalDataV7_r",
};
constexpr const char *kCalMoves[] = {
    "VOND_MMRf_GetCalDataV7_r",
    "VOND_MMRf_SetCalDataV7_r",
};
constexpr const char *kTestFaults[] = {
    R"("kind": "fail", "result": 7)",   R"("kind": "fail", "result": 3)",
    R"("kind": "status", "status": 2)", R"("kind": "noise", "seed": 3)",
    R"("kind": "delay", "ms": 20)",
};
// A noisy upload cannot be told from a good one.
constexpr const char *kCalFaults[] = {
    R"("kind": "fail", "result": 7)",
    R"("kind": "fail", "result": 11)",
    R"("kind": "bytes", "offset": 0, "hex": "00")",
    R"("kind": "delay", "ms": 20)",
};

// Only some answers have a status.
constexpr const char *kStatusCalls[] = {"VOND_NRf_RsrpV7_r", "VOND_NRf_PuschTxV7_r"};
constexpr char kStatusFault[] = R"("kind": "status", "status": 2)";

const char *DrawCall(CChance &chance)
{
    return chance.OneIn(4) ? chance.Of(kCalCalls) : chance.Of(kCalls);
}

}  // namespace

SDeed AddFault(CDesk &, CChance &chance)
{
    const bool isCal = chance.OneIn(3);
    // A block information that lies leaves routes out of a good Read.
    const char *call = isCal ? chance.Of(kCalMoves) : chance.Of(kCalls);
    const char *fault = isCal ? chance.Of(kCalFaults) : chance.Of(kTestFaults);
    if (chance.OneIn(6)) {
        call = chance.Of(kStatusCalls);
        fault = kStatusFault;
    }
    const QString text =
        QString(R"({"function": "%1", %2, "nth": %3})").arg(call, fault).arg(1 + chance.Below(2));
    VondSim_AddFault(text.toUtf8().constData());
    return {SDeed::Other, "fault " + text};
}

SDeed ClearFaults(CDesk &, CChance &)
{
    VondSim_ClearFaults();
    return {SDeed::Other, "no more faults"};
}

SDeed HoldCall(CDesk &desk, CChance &chance)
{
    const char *call = DrawCall(chance);
    desk.Hold(call);
    return {SDeed::Other, QString("hold ") + call};
}

SDeed ReleaseCall(CDesk &desk, CChance &)
{
    desk.Release();
    return {SDeed::Other, "release"};
}

SDeed TickReport(CDesk &desk, CChance &)
{
    for (const char *name : {"CNrRsrpForceDockWidgetV7", "CNrRsrpNormalDockWidgetV7"}) {
        if (QDockWidget *page = desk.Page(name))
            QMetaObject::invokeMethod(page, "Slot_RsrpRxTimerTimeout");
    }
    return {SDeed::Other, "report tick"};
}
