// Fuzz target of the simulated DUT's profiles: any bytes for a profile, then every call to the DUT.
//
// - A profile is taken or refused. A refused one leaves a DUT that answers no call; a taken one can
//   be read back as it was given.
// - The DUT of one profile gives the same answers each time the profile is put in place.
// - Counts and texts keep to the room of their records, and every route has its hardware, unless
// the
//   profile asks for faults.
// - The tool's own reader of capabilities takes whatever the DUT answers.
#include <algorithm>
#include <string>

#include "Operations/capability/TargetCapability.h"
#include "Operations/link/TargetLink.h"
#include "Simulator/VondSim.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/profile/DutCalls.h"

namespace {

constexpr uint32_t kHandle = 1;

// The DUT of a refused profile: all calls fail.
bool IsUnplugged(const SAnswers &answers)
{
    const auto failed = [](const SAnswer &answer) { return answer.result != 0; };
    return std::all_of(answers.capability.begin(), answers.capability.end(), failed) &&
           std::all_of(answers.radio.begin(), answers.radio.end(), failed);
}

bool Fits(const SMMRfRouteConfigV7 &config)
{
    const SMMRfRouteTableV7 &routes = config.routes;
    const auto areRegionsFew = [](const SMMRfTxRouteV7 &route) {
        return route.bwRegionCount <= kVondMaxBwRegions;
    };
    return config.bandCount <= kVondMaxBands && routes.txRouteCount <= kVondMaxTxRoutes &&
           routes.rxType1RouteCount <= kVondMaxRxRoutes &&
           routes.rxType2RouteCount <= kVondMaxRxRoutes &&
           config.freqRange.tx.count <= kVondMaxFreqLimits &&
           config.freqRange.rx.count <= kVondMaxFreqLimits &&
           std::all_of(std::begin(routes.txRoute), std::end(routes.txRoute), areRegionsFew);
}

bool AreOrdered(const SRouteFreqRangeHalf &limits)
{
    for (int i = 0; i < limits.count; ++i) {
        if (limits.low[i] <= 0 || limits.low[i] > limits.high[i])
            return false;
    }
    return true;
}

// Every question that the pages ask of a DUT.
void ReadAsTheTool()
{
    CTargetCapability::Reset();
    const CTargetCapability target;
    std::vector<SBandCapEntry> bands;
    std::vector<STxRouteInfoV7> tx;
    std::vector<SRxRouteInfoV7> rx;
    SRouteFreqRangeV7 range = {};
    target.GetRfChipIdLte();
    target.GetRatMask();
    target.GetNrGeneration();
    target.GetBandList(EBandDirection::Tx, bands);
    target.GetBandList(EBandDirection::Rx, bands);
    target.GetTxCommonPathV7(tx, true);
    target.GetRxCommonPathV7(rx, true);
    target.GetFreqRangeBlock(range);
    target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0);
    target.GetType2RouteGainFlag(rx.empty() ? uint16_t(0) : rx.back().route);
}

// Words of JSON can be escaped; whatever is, may be any of them.
bool MayName(const std::string &text, const char *word)
{
    return text.find(word) != std::string::npos || text.find('\\') != std::string::npos;
}

// Delays are left out of it: those of calls without a timeout would be slept through.
bool PutInPlace(const std::string &text)
{
    const bool isTaken = VondSim_SetProfileText(text.c_str()) == 0;
    if (MayName(text, "delay"))
        VondSim_ClearFaults();
    return isTaken;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    VondSim_Reset();
    SetTargetHandle(kHandle);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::string given = text.c_str();  // a C text ends with its first zero byte
    const bool isTaken = PutInPlace(given);
    const SAnswers answers = CallAll();
    if (!isTaken) {
        Require(IsUnplugged(answers), "a refused profile leaves no DUT");
    } else {
        Require(VondSim_ProfileText() == given, "a profile reads as it was given");
        if (!MayName(given, "faults")) {
            Require(Fits(answers.config), "the counts of a DUT fit its records");
            Require(AreOrdered(answers.config.freqRange.tx) &&
                        AreOrdered(answers.config.freqRange.rx),
                    "limits of a route are ordered");
        }
        ReadAsTheTool();
        PutInPlace(given);
        Require(CallAll() == answers, "a DUT answers alike each time");
    }
    VondSim_ClearJournal();
    CTargetCapability::Reset();
    return 0;
}
