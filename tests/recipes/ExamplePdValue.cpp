#include "tests/recipes/ExamplePdValue.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CExamplePdValue::Read(uint32_t kind, int16_t &value)
{
    return Finish(VOND_MMRf_GetPdValueV7_r(TargetHandle(), kTargetTimeoutMs, kind, &value));
}
