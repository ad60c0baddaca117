#include <stddef.h>

#include "tests/tap/door/fake/FakeVond.h"

int32_t VondConn_GetMdActiveIdx(uint32_t h, int32_t *index)
{
    if (index != NULL)
        *index = 3;
    return (int32_t)(h & 0xfff);
}

int32_t VondConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType)
{
    if (serviceType != NULL)
        *serviceType = index + 1;
    return (int32_t)(h & 0xfff);
}

int32_t VondConn_FakeExtra(void)
{
    return 99;
}
