// The functions of VondCore, each with what its call carries.
#include "Vond/VondCore.h"

#include <algorithm>
#include <cstring>

#include "Tap/door/Through.h"

namespace {

using F = EFunction;

// Of a record whose size the caller tells: so much of it is looked at, at most.
constexpr std::size_t kMostSized = 64 * 1024;
constexpr std::size_t kLongestName = 4096;

std::size_t Sized(uint32_t size)
{
    return std::min<std::size_t>(size, kMostSized);
}

std::size_t LengthOf(const char *name)
{
    return name != nullptr ? strnlen(name, kLongestName) : 0;
}

// A call with handle and timeout, and its records.
SAskedCall Asked(uint32_t h, uint32_t t)
{
    return {.handle = h, .timeoutMs = t};
}

template <class Request>
SAskedCall Asked(uint32_t h, uint32_t t, const Request *request)
{
    SAskedCall call = Asked(h, t);
    call.request = request;
    call.requestSize = sizeof(Request);
    return call;
}

template <class Answer>
SAskedCall Answered(SAskedCall call, Answer *answer)
{
    call.answer = answer;
    call.answerSize = sizeof(Answer);
    return call;
}

SAskedCall WithStatus(SAskedCall call, uint32_t *status)
{
    call.status = status;
    return call;
}

SAskedCall Capability(uint32_t h, uint32_t t, const void *request, uint32_t requestSize,
                      void *result, uint32_t resultSize)
{
    return {.handle = h,
            .timeoutMs = t,
            .request = request,
            .requestSize = Sized(requestSize),
            .answer = result,
            .answerSize = Sized(resultSize)};
}

}  // namespace

#pragma GCC visibility push(default)
extern "C" {

VOND_RESULT VOND_QueryFunctionSupported_r(uint32_t h, uint32_t t, const char *function)
{
    return Through<F::QueryFunctionSupported, decltype(VOND_QueryFunctionSupported_r)>(
        {.handle = h, .timeoutMs = t, .request = function, .requestSize = LengthOf(function)}, h, t,
        function);
}

const char *VOND_GetErrorString(VOND_RESULT result)
{
    return Through<F::GetErrorString, decltype(VOND_GetErrorString)>(
        {.request = &result, .requestSize = sizeof(result)}, result);
}

VOND_RESULT VOND_ERf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                       uint32_t requestSize, void *result, uint32_t resultSize)
{
    return Through<F::LteCapability, decltype(VOND_ERf_GetRfCapability_r)>(
        Capability(h, t, request, requestSize, result, resultSize), h, t, request, requestSize,
        result, resultSize);
}

VOND_RESULT VOND_MMRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                        uint32_t requestSize, void *result, uint32_t resultSize)
{
    return Through<F::MultiModeCapability, decltype(VOND_MMRf_GetRfCapability_r)>(
        Capability(h, t, request, requestSize, result, resultSize), h, t, request, requestSize,
        result, resultSize);
}

VOND_RESULT VOND_NRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                       uint32_t requestSize, void *result, uint32_t resultSize)
{
    return Through<F::NrCapability, decltype(VOND_NRf_GetRfCapability_r)>(
        Capability(h, t, request, requestSize, result, resultSize), h, t, request, requestSize,
        result, resultSize);
}

VOND_RESULT VOND_MMRf_GetRouteConfigV7_r(uint32_t h, uint32_t t, const uint32_t *radioKind,
                                         SMMRfRouteConfigV7 *result)
{
    return Through<F::RouteConfig, decltype(VOND_MMRf_GetRouteConfigV7_r)>(
        Answered(Asked(h, t, radioKind), result), h, t, radioKind, result);
}

VOND_RESULT VOND_NRf_GetBandRxInfo_r(uint32_t h, uint32_t t, SNRfBandRxInfo *result)
{
    return Through<F::BandRxInfo, decltype(VOND_NRf_GetBandRxInfo_r)>(Answered(Asked(h, t), result),
                                                                      h, t, result);
}

VOND_RESULT VOND_NRf_GetRxRouteValues_r(uint32_t h, uint32_t t, SNRfRxRouteValues *result)
{
    return Through<F::RxRouteValues, decltype(VOND_NRf_GetRxRouteValues_r)>(
        Answered(Asked(h, t), result), h, t, result);
}

VOND_RESULT VOND_MMRf_GetRouteDetailV7_r(uint32_t h, uint32_t t,
                                         const SMMRfRouteDetailReqV7 *request,
                                         SMMRfRouteDetailCnfV7 *result)
{
    return Through<F::RouteDetail, decltype(VOND_MMRf_GetRouteDetailV7_r)>(
        Answered(Asked(h, t, request), result), h, t, request, result);
}

const char *VOND_ERf_GetChipIdName(uint32_t chipId)
{
    return Through<F::LteChipName, decltype(VOND_ERf_GetChipIdName)>(
        {.request = &chipId, .requestSize = sizeof(chipId)}, chipId);
}

const char *VOND_NRf_GetChipIdName(uint32_t chipId)
{
    return Through<F::NrChipName, decltype(VOND_NRf_GetChipIdName)>(
        {.request = &chipId, .requestSize = sizeof(chipId)}, chipId);
}

VOND_RESULT VOND_NRf_PuschTxV7_r(uint32_t h, uint32_t t, const SNrPuschTxCmdV7 *command,
                                 uint32_t *status)
{
    return Through<F::PuschTx, decltype(VOND_NRf_PuschTxV7_r)>(
        WithStatus(Asked(h, t, command), status), h, t, command, status);
}

VOND_RESULT VOND_NRf_RsrpV7_r(uint32_t h, uint32_t t, const SNrRsrpCmdV7 *command, uint32_t *status)
{
    return Through<F::Rsrp, decltype(VOND_NRf_RsrpV7_r)>(WithStatus(Asked(h, t, command), status),
                                                         h, t, command, status);
}

VOND_RESULT VOND_NRf_GetDlFreqV7_r(uint32_t h, uint32_t t, const SNrDlFreqCmdV7 *command,
                                   SNrDlFreqCnfV7 *result)
{
    return Through<F::GetDlFreq, decltype(VOND_NRf_GetDlFreqV7_r)>(
        Answered(Asked(h, t, command), result), h, t, command, result);
}

VOND_RESULT VOND_MMRf_GainSearchV7_r(uint32_t h, uint32_t t, const SMMGainSearchCmdV7 *command,
                                     SMMGainSearchCnfV7 *result)
{
    return Through<F::GainSearch, decltype(VOND_MMRf_GainSearchV7_r)>(
        Answered(Asked(h, t, command), result), h, t, command, result);
}

VOND_RESULT VOND_MMRf_RssiV7_r(uint32_t h, uint32_t t, const SMMRssiCmdV7 *command,
                               SMMRssiCnfV7 *result)
{
    return Through<F::Rssi, decltype(VOND_MMRf_RssiV7_r)>(Answered(Asked(h, t, command), result), h,
                                                          t, command, result);
}

VOND_RESULT VOND_MMRf_SingleToneTxV7_r(uint32_t h, uint32_t t, const SMMSingleToneCmdV7 *command)
{
    return Through<F::SingleToneTx, decltype(VOND_MMRf_SingleToneTxV7_r)>(Asked(h, t, command), h,
                                                                          t, command);
}

VOND_RESULT VOND_MMRf_ContRxV7_r(uint32_t h, uint32_t t, const SMMContRxCmdV7 *command)
{
    return Through<F::ContRx, decltype(VOND_MMRf_ContRxV7_r)>(Asked(h, t, command), h, t, command);
}

VOND_RESULT VOND_MMRf_GetPdValueV7_r(uint32_t h, uint32_t t, uint32_t kind, int16_t *value)
{
    return Through<F::GetPdValue, decltype(VOND_MMRf_GetPdValueV7_r)>(
        Answered(Asked(h, t, &kind), value), h, t, kind, value);
}

VOND_RESULT VOND_NRf_GetMixRxReportV7_r(uint32_t h, uint32_t t,
                                        NRfTestResult_GetMixRxReportV7 *report)
{
    return Through<F::GetMixRxReport, decltype(VOND_NRf_GetMixRxReportV7_r)>(
        Answered(Asked(h, t), report), h, t, report);
}

VOND_RESULT VOND_NRf_ResetMixRxReportV7_r(uint32_t h, uint32_t t)
{
    return Through<F::ResetMixRxReport, decltype(VOND_NRf_ResetMixRxReportV7_r)>(Asked(h, t), h, t);
}

VOND_RESULT VOND_NRf_TestStop_r(uint32_t h, uint32_t t)
{
    return Through<F::NrTestStop, decltype(VOND_NRf_TestStop_r)>(Asked(h, t), h, t);
}

VOND_RESULT VOND_MMRf_TestStopV7_r(uint32_t h, uint32_t t, uint32_t kind)
{
    return Through<F::MultiModeTestStop, decltype(VOND_MMRf_TestStopV7_r)>(Asked(h, t, &kind), h, t,
                                                                           kind);
}

VOND_RESULT VOND_MMRf_GetCalBlkInfoV7_r(uint32_t h, uint32_t t, uint32_t radioKind,
                                        SMMCalBlkInfoCnfV7 *result)
{
    return Through<F::GetCalBlkInfo, decltype(VOND_MMRf_GetCalBlkInfoV7_r)>(
        Answered(Asked(h, t, &radioKind), result), h, t, radioKind, result);
}

VOND_RESULT VOND_MMRf_GetCalDataV7_r(uint32_t h, uint32_t t, const SMMGetCalDataReqV7 *request,
                                     SMMGetCalDataCnfV7 *result)
{
    return Through<F::GetCalData, decltype(VOND_MMRf_GetCalDataV7_r)>(
        Answered(Asked(h, t, request), result), h, t, request, result);
}

VOND_RESULT VOND_MMRf_SetCalDataV7_r(uint32_t h, uint32_t t, const SMMSetCalDataReqV7 *request,
                                     SMMSetCalDataCnfV7 *result)
{
    return Through<F::SetCalData, decltype(VOND_MMRf_SetCalDataV7_r)>(
        Answered(Asked(h, t, request), result), h, t, request, result);
}

}  // extern "C"
#pragma GCC visibility pop
