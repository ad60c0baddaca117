#include "Operations/tests/MultiRatSingleToneTxV7.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CMultiRatSingleToneTxV7::RunSingleTone(const SMMSingleToneCmdV7 *command)
{
    return Finish(VOND_MMRf_SingleToneTxV7_r(TargetHandle(), kTargetTimeoutMs, command));
}

uint32_t CMultiRatSingleToneTxV7::GetPdValue(uint32_t kind, int16_t *value)
{
    return Finish(VOND_MMRf_GetPdValueV7_r(TargetHandle(), kTargetTimeoutMs, kind, value));
}
