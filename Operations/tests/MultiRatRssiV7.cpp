#include "Operations/tests/MultiRatRssiV7.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CMultiRatRssiV7::RunGainSearch(SMMGainSearchCmdV7 command, SMMGainSearchCnfV7 *result)
{
    return Finish(VOND_MMRf_GainSearchV7_r(TargetHandle(), kTargetTimeoutMs, &command, result));
}

uint32_t CMultiRatRssiV7::RunRssi(SMMRssiCmdV7 command, SMMRssiCnfV7 *result)
{
    return Finish(VOND_MMRf_RssiV7_r(TargetHandle(), kTargetTimeoutMs, &command, result));
}
