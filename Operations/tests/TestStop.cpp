#include "Operations/tests/TestStop.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CNrTestStop::Stop()
{
    return Finish(VOND_NRf_TestStop_r(TargetHandle(), kTargetTimeoutMs));
}

uint32_t CMultiRatTestStopV7::Stop(uint32_t kind)
{
    return Finish(VOND_MMRf_TestStopV7_r(TargetHandle(), kTargetTimeoutMs, kind));
}
