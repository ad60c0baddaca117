#include <errno.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

#include "tests/tap/door/fake/FakeVond.h"

static uint32_t s_calls;

static int32_t Answer(uint32_t h, uint32_t t, void *answer, size_t size)
{
    __atomic_add_fetch(&s_calls, 1, __ATOMIC_RELAXED);
    if (h & FAKE_SLOW) {
        const struct timespec time = {0, 20 * 1000 * 1000};
        nanosleep(&time, NULL);
    }
    while (h & FAKE_STUCK)
        pause();
    if (answer != NULL && !(h & FAKE_SILENT))
        memset(answer, (int)(t & 0xff), size);
    if (h & FAKE_ERRNO)
        errno = 77;
    return (int32_t)(h & 0xfff);
}

static int32_t Status(uint32_t h, uint32_t t, uint32_t *status)
{
    if (status != NULL && !(h & FAKE_SILENT))
        *status = t;
    return Answer(h, t, NULL, 0);
}

uint32_t VOND_Fake_CallCount(void)
{
    return __atomic_load_n(&s_calls, __ATOMIC_RELAXED);
}

int32_t VOND_Fake_Extra_r(uint32_t h, double value)
{
    return (int32_t)(h + (uint32_t)value);
}

int32_t VOND_QueryFunctionSupported_r(uint32_t h, uint32_t t, const char *function)
{
    const int32_t result = Answer(h, t, NULL, 0);
    return function != NULL ? result : 5;
}

const char *VOND_GetErrorString(int32_t result)
{
    static __thread char text[32];
    __atomic_add_fetch(&s_calls, 1, __ATOMIC_RELAXED);
    if (result == FAKE_NO_TEXT)
        return NULL;
    if (result == FAKE_BAD_TEXT)
        return "bad \xff \"text\"";
    snprintf(text, sizeof(text), "fake %d", (int)result);
    return text;
}

int32_t VOND_ERf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request, uint32_t requestSize,
                                   void *result, uint32_t resultSize)
{
    (void)request;
    (void)requestSize;
    return Answer(h, t, result, resultSize);
}

int32_t VOND_MMRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                    uint32_t requestSize, void *result, uint32_t resultSize)
{
    return VOND_ERf_GetRfCapability_r(h, t, request, requestSize, result, resultSize);
}

int32_t VOND_NRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request, uint32_t requestSize,
                                   void *result, uint32_t resultSize)
{
    return VOND_ERf_GetRfCapability_r(h, t, request, requestSize, result, resultSize);
}

int32_t VOND_MMRf_GetRouteConfigV7_r(uint32_t h, uint32_t t, const uint32_t *radioKind, void *result)
{
    (void)radioKind;
    return Answer(h, t, result, 5476);
}

int32_t VOND_NRf_GetBandRxInfo_r(uint32_t h, uint32_t t, void *result)
{
    return Answer(h, t, result, 102);
}

int32_t VOND_NRf_GetRxRouteValues_r(uint32_t h, uint32_t t, void *result)
{
    return Answer(h, t, result, 20402);
}

int32_t VOND_MMRf_GetRouteDetailV7_r(uint32_t h, uint32_t t, const void *request, void *result)
{
    (void)request;
    return Answer(h, t, result, 183716);
}

const char *VOND_ERf_GetChipIdName(uint32_t chipId)
{
    __atomic_add_fetch(&s_calls, 1, __ATOMIC_RELAXED);
    return chipId == 11 ? "FK11" : NULL;
}

const char *VOND_NRf_GetChipIdName(uint32_t chipId)
{
    __atomic_add_fetch(&s_calls, 1, __ATOMIC_RELAXED);
    return chipId == 40 ? "FK40" : NULL;
}

int32_t VOND_NRf_PuschTxV7_r(uint32_t h, uint32_t t, const void *command, uint32_t *status)
{
    (void)command;
    return Status(h, t, status);
}

int32_t VOND_NRf_RsrpV7_r(uint32_t h, uint32_t t, const void *command, uint32_t *status)
{
    (void)command;
    return Status(h, t, status);
}

int32_t VOND_NRf_GetDlFreqV7_r(uint32_t h, uint32_t t, const void *command, void *result)
{
    (void)command;
    return Answer(h, t, result, 8);
}

int32_t VOND_MMRf_GainSearchV7_r(uint32_t h, uint32_t t, const void *command, void *result)
{
    (void)command;
    return Answer(h, t, result, 28);
}

int32_t VOND_MMRf_RssiV7_r(uint32_t h, uint32_t t, const void *command, void *result)
{
    (void)command;
    return Answer(h, t, result, 76);
}

int32_t VOND_MMRf_SingleToneTxV7_r(uint32_t h, uint32_t t, const void *command)
{
    (void)command;
    return Answer(h, t, NULL, 0);
}

int32_t VOND_MMRf_ContRxV7_r(uint32_t h, uint32_t t, const void *command)
{
    (void)command;
    return Answer(h, t, NULL, 0);
}

int32_t VOND_MMRf_GetPdValueV7_r(uint32_t h, uint32_t t, uint32_t kind, int16_t *value)
{
    (void)kind;
    return Answer(h, t, value, sizeof(*value));
}

int32_t VOND_NRf_GetMixRxReportV7_r(uint32_t h, uint32_t t, void *report)
{
    return Answer(h, t, report, 172);
}

int32_t VOND_NRf_ResetMixRxReportV7_r(uint32_t h, uint32_t t)
{
    return Answer(h, t, NULL, 0);
}

int32_t VOND_NRf_TestStop_r(uint32_t h, uint32_t t)
{
    return Answer(h, t, NULL, 0);
}

int32_t VOND_MMRf_TestStopV7_r(uint32_t h, uint32_t t, uint32_t kind)
{
    (void)kind;
    return Answer(h, t, NULL, 0);
}

int32_t VOND_MMRf_GetCalBlkInfoV7_r(uint32_t h, uint32_t t, uint32_t radioKind, void *result)
{
    (void)radioKind;
    return Answer(h, t, result, 2406);
}

int32_t VOND_MMRf_GetCalDataV7_r(uint32_t h, uint32_t t, const void *request, void *result)
{
    (void)request;
    return Answer(h, t, result, 178276);
}

int32_t VOND_MMRf_SetCalDataV7_r(uint32_t h, uint32_t t, const void *request, void *result)
{
    (void)request;
    return Answer(h, t, result, 193);
}
