/* What a plug-in would be: it alone is linked with the pair. */
#include "tests/tap/door/fake/FakeVond.h"

int32_t TapPlugin_Work(void);

/* Calls of the pair since it was loaded, or -1 when an answer was wrong. */
int32_t TapPlugin_Work(void)
{
    int32_t index = 0;
    int16_t value = 0;
    if (VOND_NRf_TestStop_r(FAKE_RESULT(7), 1000) != 7)
        return -1;
    if (VondConn_GetMdActiveIdx(0, &index) != 0 || index != 3)
        return -1;
    if (VOND_MMRf_GetPdValueV7_r(0, 0x21, 1, &value) != 0 || value != 0x2121)
        return -1;
    return (int32_t)VOND_Fake_CallCount();
}
