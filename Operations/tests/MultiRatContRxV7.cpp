#include "Operations/tests/MultiRatContRxV7.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CMultiRatContRxV7::RunContRx(const SMMContRxCmdV7 *command)
{
    return Finish(VOND_MMRf_ContRxV7_r(TargetHandle(), kTargetTimeoutMs, command));
}
