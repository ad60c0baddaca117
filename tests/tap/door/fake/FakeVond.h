/* A pair of libraries in C that has nothing in common with the simulated DUT: its functions do as the
 * handle tells them, so that a test can have what it needs.
 *
 *   VOND_NRf_TestStop_r(FAKE_RESULT(7), 1000);    returns 7
 *
 * An answer is filled with the low byte of the timeout, the status word is the timeout; both also when
 * the call fails, and not when FAKE_SILENT is set.
 */
#ifndef FAKE_VOND_H
#define FAKE_VOND_H

#include <stdint.h>

#define FAKE_RESULT(result) ((uint32_t)(result)&0xfff)
#define FAKE_SLOW 0x1000u   /* takes 20 ms, and may be cancelled in them */
#define FAKE_SILENT 0x2000u /* leaves answer and status alone */
#define FAKE_ERRNO 0x4000u  /* sets errno to 77 */
#define FAKE_STUCK 0x8000u  /* does not come back */

/* Texts of the fake: "fake 7" for 7, none for FAKE_NO_TEXT, and one that is no UTF-8. */
#define FAKE_NO_TEXT 13
#define FAKE_BAD_TEXT 14

int32_t VOND_QueryFunctionSupported_r(uint32_t h, uint32_t t, const char *function);
const char *VOND_GetErrorString(int32_t result);
int32_t VOND_ERf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                   uint32_t requestSize, void *result, uint32_t resultSize);
int32_t VOND_MMRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                    uint32_t requestSize, void *result, uint32_t resultSize);
int32_t VOND_NRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                   uint32_t requestSize, void *result, uint32_t resultSize);
int32_t VOND_MMRf_GetRouteConfigV7_r(uint32_t h, uint32_t t, const uint32_t *radioKind,
                                     void *result);
int32_t VOND_NRf_GetBandRxInfo_r(uint32_t h, uint32_t t, void *result);
int32_t VOND_NRf_GetRxRouteValues_r(uint32_t h, uint32_t t, void *result);
int32_t VOND_MMRf_GetRouteDetailV7_r(uint32_t h, uint32_t t, const void *request, void *result);
const char *VOND_ERf_GetChipIdName(uint32_t chipId);
const char *VOND_NRf_GetChipIdName(uint32_t chipId);
int32_t VOND_NRf_PuschTxV7_r(uint32_t h, uint32_t t, const void *command, uint32_t *status);
int32_t VOND_NRf_RsrpV7_r(uint32_t h, uint32_t t, const void *command, uint32_t *status);
int32_t VOND_NRf_GetDlFreqV7_r(uint32_t h, uint32_t t, const void *command, void *result);
int32_t VOND_MMRf_GainSearchV7_r(uint32_t h, uint32_t t, const void *command, void *result);
int32_t VOND_MMRf_RssiV7_r(uint32_t h, uint32_t t, const void *command, void *result);
int32_t VOND_MMRf_SingleToneTxV7_r(uint32_t h, uint32_t t, const void *command);
int32_t VOND_MMRf_ContRxV7_r(uint32_t h, uint32_t t, const void *command);
int32_t VOND_MMRf_GetPdValueV7_r(uint32_t h, uint32_t t, uint32_t kind, int16_t *value);
int32_t VOND_NRf_GetMixRxReportV7_r(uint32_t h, uint32_t t, void *report);
int32_t VOND_NRf_ResetMixRxReportV7_r(uint32_t h, uint32_t t);
int32_t VOND_NRf_TestStop_r(uint32_t h, uint32_t t);
int32_t VOND_MMRf_TestStopV7_r(uint32_t h, uint32_t t, uint32_t kind);
int32_t VOND_MMRf_GetCalBlkInfoV7_r(uint32_t h, uint32_t t, uint32_t radioKind, void *result);
int32_t VOND_MMRf_GetCalDataV7_r(uint32_t h, uint32_t t, const void *request, void *result);
int32_t VOND_MMRf_SetCalDataV7_r(uint32_t h, uint32_t t, const void *request, void *result);

int32_t VondConn_GetMdActiveIdx(uint32_t h, int32_t *index);
int32_t VondConn_GetMdSrv(uint32_t h, int32_t index, int32_t *serviceType);

/* What the tap does not know. */
int32_t VOND_Fake_Extra_r(uint32_t h, double value);
int32_t VondConn_FakeExtra(void);
/* Calls of all functions above but these, since the library was loaded. */
uint32_t VOND_Fake_CallCount(void);

#endif
