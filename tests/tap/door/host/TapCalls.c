#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <sys/mman.h>

#include "tests/tap/door/fake/FakeVond.h"
#include "tests/tap/door/host/TapHost.h"

enum { kMostBytes = 200000 };

static unsigned char s_request[kMostBytes];
static unsigned char s_answer[kMostBytes];

/* One line: what the call returned, and what it left. */
static void Tell(const char *name, int32_t result)
{
    const int error = errno;
    uint32_t sum = 0;
    for (size_t i = 0; i < kMostBytes; ++i)
        sum = sum * 31 + s_answer[i];
    printf("%s %d %08x %d\n", name, (int)result, (unsigned)sum, error);
    memset(s_answer, 0xcc, sizeof(s_answer));
    errno = 0;
}

static void TellText(const char *name, const char *text)
{
    Tell(text != NULL ? text : "no text", 0);
    (void)name;
}

#define TELL(name, ...) Tell(#name, name(__VA_ARGS__))

static void CallQueries(void)
{
    TELL(VOND_QueryFunctionSupported_r, 1, 10, "VOND_NRf_TestStop_r");
    TELL(VOND_QueryFunctionSupported_r, 1, 10, NULL);
    TELL(VOND_QueryFunctionSupported_r, 1, 10, "");
    TellText("VOND_GetErrorString", VOND_GetErrorString(7));
    TellText("VOND_GetErrorString", VOND_GetErrorString(FAKE_NO_TEXT));
    TellText("VOND_ERf_GetChipIdName", VOND_ERf_GetChipIdName(11));
    TellText("VOND_NRf_GetChipIdName", VOND_NRf_GetChipIdName(41));
    TELL(VOND_ERf_GetRfCapability_r, 0, 1, s_request, 8, s_answer, 248);
    TELL(VOND_MMRf_GetRfCapability_r, FAKE_SILENT, 2, s_request, 0, s_answer, 0);
    TELL(VOND_NRf_GetRfCapability_r, 5, 3, NULL, 8, NULL, 36);
    TELL(VOND_NRf_GetRfCapability_r, 5, 3, s_request, 4, s_answer, 9);
    TELL(VOND_MMRf_GetRouteConfigV7_r, 0, 4, (const uint32_t *)(const void *)s_request, s_answer);
    TELL(VOND_NRf_GetBandRxInfo_r, 0, 5, s_answer);
    TELL(VOND_NRf_GetRxRouteValues_r, 0, 6, s_answer);
    TELL(VOND_MMRf_GetRouteDetailV7_r, 0, 7, s_request, s_answer);
    TELL(VondConn_GetMdActiveIdx, 3, (int32_t *)(void *)s_answer);
    TELL(VondConn_GetMdSrv, 0, 9, (int32_t *)(void *)s_answer);
    TELL(VondConn_GetMdSrv, 0, 9, NULL);
}

static void CallCommands(void)
{
    uint32_t status = 0;
    TELL(VOND_NRf_PuschTxV7_r, 0, 8, s_request, &status);
    TELL(VOND_NRf_PuschTxV7_r, FAKE_RESULT(FAKE_BAD_TEXT), 8, s_request, NULL);
    TELL(VOND_NRf_RsrpV7_r, FAKE_ERRNO, 9, s_request, &status);
    TELL(VOND_NRf_GetDlFreqV7_r, 0, 10, s_request, s_answer);
    TELL(VOND_MMRf_GainSearchV7_r, 0, 11, s_request, s_answer + 1); /* unaligned */
    TELL(VOND_MMRf_RssiV7_r, FAKE_RESULT(FAKE_NO_TEXT), 12, s_answer, s_answer); /* one record */
    TELL(VOND_MMRf_RssiV7_r, 0, 12, s_request, NULL);
    TELL(VOND_MMRf_SingleToneTxV7_r, FAKE_SLOW, 13, s_request);
    TELL(VOND_MMRf_ContRxV7_r, 0, 14, s_request);
    TELL(VOND_MMRf_ContRxV7_r, 0xfff, 14, NULL);
    TELL(VOND_MMRf_GetPdValueV7_r, 0, 15, 1, (int16_t *)(void *)s_answer);
    TELL(VOND_NRf_GetMixRxReportV7_r, FAKE_SILENT | 6, 16, s_answer);
    TELL(VOND_NRf_ResetMixRxReportV7_r, 0, 17);
    TELL(VOND_NRf_TestStop_r, 7, 18);
    TELL(VOND_MMRf_TestStopV7_r, 0, 19, 1);
    TELL(VOND_MMRf_GetCalBlkInfoV7_r, 0, 20, 1, s_answer);
    TELL(VOND_MMRf_GetCalDataV7_r, 0, 21, s_request, s_answer);
    TELL(VOND_MMRf_SetCalDataV7_r, 0, 22, s_request, s_answer);
    const char *const kept = VOND_GetErrorString(21);
    TELL(VOND_NRf_TestStop_r, 22, 18);
    printf("kept %s\n", kept);
    printf("status %u\n", (unsigned)status);
}

/* Pointers to nowhere, and to the last bytes before nowhere; the pair looks at none of them. */
static void CallWithOddPointers(void)
{
    unsigned char *const nowhere = (unsigned char *)16;
    unsigned char *const pages =
        mmap(NULL, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    mprotect(pages + 4096, 4096, PROT_NONE);
    memset(pages, 0xee, 4096);
    TELL(VOND_MMRf_ContRxV7_r, 1, 30, nowhere);
    TELL(VOND_NRf_GetDlFreqV7_r, FAKE_SILENT | 1, 30, nowhere, nowhere);
    TELL(VOND_NRf_PuschTxV7_r, FAKE_SILENT | 1, 30, pages + 4090, (uint32_t *)(void *)nowhere);
    TELL(VOND_NRf_GetRxRouteValues_r, FAKE_SILENT | 1, 30, pages + 4090);
    munmap(pages, 8192);
}

int RunCalls(void)
{
    for (size_t i = 0; i < sizeof(s_request); ++i)
        s_request[i] = (unsigned char)(i * 7);
    memset(s_answer, 0xcc, sizeof(s_answer));
    CallQueries();
    CallCommands();
    CallWithOddPointers();
    printf("extra %d %d\n", (int)VOND_Fake_Extra_r(1, 2.0), (int)VondConn_FakeExtra());
    return 0;
}

int RunMany(int count)
{
    for (int i = 0; i < count; ++i) {
        if (VOND_MMRf_ContRxV7_r(FAKE_RESULT(i % 5), 10, s_request) != i % 5)
            return 1;
        printf("%d\n", i);
        fflush(stdout);
    }
    return 0;
}
