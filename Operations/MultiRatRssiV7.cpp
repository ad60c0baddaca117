#include "Operations/MultiRatRssiV7.h"

#include "Operations/AnswerRoom.h"
#include "Operations/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CMultiRatRssiV7::RunGainSearch(SMMGainSearchCmdV7 command, SMMGainSearchCnfV7 *result)
{
    const VOND_RESULT answer =
        VOND_MMRf_GainSearchV7_r(TargetHandle(), kTargetTimeoutMs, &command, result);
    HoldToRoom(*result);
    return Finish(answer);
}

uint32_t CMultiRatRssiV7::RunRssi(SMMRssiCmdV7 command, SMMRssiCnfV7 *result)
{
    const VOND_RESULT answer =
        VOND_MMRf_RssiV7_r(TargetHandle(), kTargetTimeoutMs, &command, result);
    HoldToRoom(*result, command.singlePath == 1);
    return Finish(answer);
}
