// A host without a window: reads what the DUT can do, measures at three frequencies, and stops.

#include <memory>

#include "Vond/VondApp.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"

namespace {

constexpr uint32_t kHandle = 1;
constexpr uint32_t kTimeoutMs = 10000;

void ReadCapability()
{
    const uint32_t nr = 1;
    const auto config = std::make_unique<SMMRfRouteConfigV7>();
    VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &nr, config.get());
    SNRfBandRxInfo bands = {};
    VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, &bands);
    const auto request = std::make_unique<SMMRfRouteDetailReqV7>();
    const auto detail = std::make_unique<SMMRfRouteDetailCnfV7>();
    request->radioKind = nr;
    request->rxType2Count = 1;
    request->rxType2Route[0] = 106;
    VOND_MMRf_GetRouteDetailV7_r(kHandle, kTimeoutMs, request.get(), detail.get());
}

void Measure(uint32_t frequency)
{
    SMMRssiCmdV7 command = RssiBothPathsCommand();
    command.rxRoute = 106;
    command.numFreq = 1;
    command.dlFrequency[0] = frequency;
    SMMRssiCnfV7 answer = {};
    VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &command, &answer);
}

}  // namespace

int main()
{
    int32_t index = 0;
    VondConn_GetMdActiveIdx(kHandle, &index);
    ReadCapability();
    for (const uint32_t frequency : {3450000u, 3550020u, 3480000u})
        Measure(frequency);
    VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
}
