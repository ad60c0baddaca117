// VondCore: the closed library of target commands, as this system sees it.
//
// h is the target handle that the host supplies, t the timeout in milliseconds; a function that
// takes them blocks the calling thread until the target has answered or t has passed. The result is
// a VOND_RESULT: 0 (VOND_SUCCESS) or a code that VOND_GetErrorString words. A status pointer
// receives the target's own verdict, 0 for success. Nothing is retried inside; the library takes
// one call at a time.
//
//   uint32_t kind = 1;
//   SMMRfRouteConfigV7 config = {};
//   if (VOND_MMRf_GetRouteConfigV7_r(handle, 10000, &kind, &config) != VOND_SUCCESS) ...
#pragma once

#include "Vond/VondCalRecords.h"
#include "Vond/VondCapabilityRecords.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

using VOND_RESULT = int32_t;
constexpr VOND_RESULT VOND_SUCCESS = 0;

extern "C" {

// Success when the target offers the function of that name.
VOND_RESULT VOND_QueryFunctionSupported_r(uint32_t h, uint32_t t, const char *function);
// The text of a result; may be null. The library owns the text.
const char *VOND_GetErrorString(VOND_RESULT result);

// Capability reads; request and result are the records named beside each.
VOND_RESULT VOND_ERf_GetRfCapability_r(uint32_t h, uint32_t t,
                                       const void *request,  // SVondCapabilityReq
                                       uint32_t requestSize,
                                       void *result,  // SERfCapability
                                       uint32_t resultSize);
VOND_RESULT VOND_MMRf_GetRfCapability_r(uint32_t h, uint32_t t,
                                        const void *request,  // SVondCapabilityReq
                                        uint32_t requestSize,
                                        void *result,  // SMMRfCapability
                                        uint32_t resultSize);
VOND_RESULT VOND_NRf_GetRfCapability_r(uint32_t h, uint32_t t,
                                       const void *request,  // SVondCapabilityReq
                                       uint32_t requestSize,
                                       void *result,  // SNRfCapability
                                       uint32_t resultSize);
VOND_RESULT VOND_MMRf_GetRouteConfigV7_r(uint32_t h, uint32_t t, const uint32_t *radioKind,
                                         SMMRfRouteConfigV7 *result);
VOND_RESULT VOND_NRf_GetBandRxInfo_r(uint32_t h, uint32_t t, SNRfBandRxInfo *result);
VOND_RESULT VOND_NRf_GetRxRouteValues_r(uint32_t h, uint32_t t, SNRfRxRouteValues *result);
VOND_RESULT VOND_MMRf_GetRouteDetailV7_r(uint32_t h, uint32_t t,
                                         const SMMRfRouteDetailReqV7 *request,
                                         SMMRfRouteDetailCnfV7 *result);

// Chip names; no target traffic. The library owns the text; null for an unknown id.
const char *VOND_ERf_GetChipIdName(uint32_t chipId);
const char *VOND_NRf_GetChipIdName(uint32_t chipId);

// Test commands.
VOND_RESULT VOND_NRf_PuschTxV7_r(uint32_t h, uint32_t t, const SNrPuschTxCmdV7 *command,
                                 uint32_t *status);
VOND_RESULT VOND_NRf_RsrpV7_r(uint32_t h, uint32_t t, const SNrRsrpCmdV7 *command,
                              uint32_t *status);
VOND_RESULT VOND_NRf_GetDlFreqV7_r(uint32_t h, uint32_t t, const SNrDlFreqCmdV7 *command,
                                   SNrDlFreqCnfV7 *result);
VOND_RESULT VOND_MMRf_GainSearchV7_r(uint32_t h, uint32_t t, const SMMGainSearchCmdV7 *command,
                                     SMMGainSearchCnfV7 *result);
VOND_RESULT VOND_MMRf_RssiV7_r(uint32_t h, uint32_t t, const SMMRssiCmdV7 *command,
                               SMMRssiCnfV7 *result);
VOND_RESULT VOND_MMRf_SingleToneTxV7_r(uint32_t h, uint32_t t, const SMMSingleToneCmdV7 *command);
VOND_RESULT VOND_MMRf_ContRxV7_r(uint32_t h, uint32_t t, const SMMContRxCmdV7 *command);
// Power detector reading in dBm, 1/256 dB; kind is 1.
VOND_RESULT VOND_MMRf_GetPdValueV7_r(uint32_t h, uint32_t t, uint32_t kind, int16_t *value);
VOND_RESULT VOND_NRf_GetMixRxReportV7_r(uint32_t h, uint32_t t,
                                        NRfTestResult_GetMixRxReportV7 *report);
VOND_RESULT VOND_NRf_ResetMixRxReportV7_r(uint32_t h, uint32_t t);

// Stops: the NR tests (PUSCH, RSRP), and the multi-mode ones (single tone, continuous RX; kind 1).
VOND_RESULT VOND_NRf_TestStop_r(uint32_t h, uint32_t t);
VOND_RESULT VOND_MMRf_TestStopV7_r(uint32_t h, uint32_t t, uint32_t kind);

// Calibration data in flash. radioKind: 0 LTE side, 1 NR. In both transfers the verdict of the
// answer comes before the result: see SMMCalVerdictV7.
VOND_RESULT VOND_MMRf_GetCalBlkInfoV7_r(uint32_t h, uint32_t t, uint32_t radioKind,
                                        SMMCalBlkInfoCnfV7 *result);
VOND_RESULT VOND_MMRf_GetCalDataV7_r(uint32_t h, uint32_t t, const SMMGetCalDataReqV7 *request,
                                     SMMGetCalDataCnfV7 *result);
VOND_RESULT VOND_MMRf_SetCalDataV7_r(uint32_t h, uint32_t t, const SMMSetCalDataReqV7 *request,
                                     SMMSetCalDataCnfV7 *result);

}  // extern "C"
