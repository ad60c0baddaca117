// The C interface of VondCore, one short function each: what the call carries, and who answers it.

#include "Vond/VondCore.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "Simulator/door/Simulator.h"
#include "Simulator/flash/CalTransfers.h"
#include "Simulator/radio/CapabilityAnswers.h"

namespace {

constexpr std::size_t kLongestName = 256;  // of a function, as far as the journal keeps it

struct SCapabilitySizes
{
    uint32_t capability;
    uint32_t calibration;
};

constexpr SCapabilitySizes kLteSizes = {56, 180};
constexpr SCapabilitySizes kMultiModeSizes = {4, 132};
constexpr uint32_t kNrCalibrationSize = 24;  // the first word of the NR request is not read

int32_t Run(const SCall &call, const CSimulator::Body &body)
{
    return CSimulator::Instance().Run(call, body);
}

// A capability read as its caller sees it: plain bytes with sizes.
struct SCapabilityRead
{
    EFunction function;
    uint32_t handle;
    uint32_t timeoutMs;
    const void *request;
    uint32_t requestSize;
    void *result;
    uint32_t resultSize;
};

// Works on copies of request and record, since the caller's bytes may be unaligned.
template <class Record, class Use>
int32_t ReadCapability(const SCapabilityRead &read, const Use &use)
{
    const std::size_t requestSize =
        std::min<std::size_t>(read.requestSize, sizeof(SVondCapabilityReq));
    const std::size_t resultSize = std::min<std::size_t>(read.resultSize, sizeof(Record));
    const SCall call = {read.function,
                        read.handle,
                        read.timeoutMs,
                        {read.request, requestSize},
                        {read.result, resultSize}};
    return Run(call, [&](SDut &dut) -> SVerdict {
        if (read.requestSize != sizeof(SVondCapabilityReq) || read.resultSize != sizeof(Record))
            return EResult::RecordSize;
        SVondCapabilityReq request;
        std::memcpy(&request, read.request, sizeof(request));
        Record record;
        const SVerdict verdict = use(dut.profile, request, record);
        if (verdict.Ok())
            std::memcpy(read.result, &record, sizeof(record));
        return verdict;
    });
}

// Each text lives as long as the process, since callers may keep the pointer.
const char *Kept(const char *text)
{
    static std::set<std::string> *const texts = new std::set<std::string>;
    return text != nullptr ? texts->insert(text).first->c_str() : nullptr;
}

const char *NameOfChip(EFunction function, uint32_t chipId, SProfileChip SProfile::*chip)
{
    return CSimulator::Instance().RunText({function, 0, 0, RequestOf(&chipId)}, [&](SDut &dut) {
        return Kept(ChipName(dut.profile.*chip, chipId));
    });
}

}  // namespace

#pragma GCC visibility push(default)
extern "C" {

VOND_RESULT VOND_QueryFunctionSupported_r(uint32_t h, uint32_t t, const char *function)
{
    // A null name counts one byte, so that it is refused as a null pointer.
    const std::size_t length = function != nullptr ? strnlen(function, kLongestName) : 1;
    return Run({EFunction::QueryFunctionSupported, h, t, {function, length}},
               [&](SDut &dut) -> SVerdict {
                   const SFunction *row = FindFunction({function, length});
                   return row != nullptr && Offers(dut.profile, *row) ? EResult::Success
                                                                      : EResult::NotOffered;
               });
}

const char *VOND_GetErrorString(VOND_RESULT result)
{
    return CSimulator::Instance().RunText({EFunction::GetErrorString, 0, 0, RequestOf(&result)},
                                          [&](SDut &) { return ResultText(result); });
}

VOND_RESULT VOND_ERf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                       uint32_t requestSize, void *result, uint32_t resultSize)
{
    return ReadCapability<SERfCapability>(
        {EFunction::LteCapability, h, t, request, requestSize, result, resultSize},
        [](const SProfile &profile, const SVondCapabilityReq &sizes, SERfCapability &record) {
            AnswerLteCapability(profile, record);
            return CheckCapabilitySizes(sizes, kLteSizes.capability, kLteSizes.calibration);
        });
}

VOND_RESULT VOND_MMRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                        uint32_t requestSize, void *result, uint32_t resultSize)
{
    return ReadCapability<SMMRfCapability>(
        {EFunction::MultiModeCapability, h, t, request, requestSize, result, resultSize},
        [](const SProfile &profile, const SVondCapabilityReq &sizes, SMMRfCapability &record) {
            AnswerMultiModeCapability(profile, record);
            return CheckCapabilitySizes(sizes, kMultiModeSizes.capability,
                                        kMultiModeSizes.calibration);
        });
}

VOND_RESULT VOND_NRf_GetRfCapability_r(uint32_t h, uint32_t t, const void *request,
                                       uint32_t requestSize, void *result, uint32_t resultSize)
{
    return ReadCapability<SNRfCapability>(
        {EFunction::NrCapability, h, t, request, requestSize, result, resultSize},
        [](const SProfile &profile, const SVondCapabilityReq &sizes, SNRfCapability &record) {
            AnswerNrCapability(profile, record);
            return CheckCapabilitySizes(sizes, sizes.capabilitySize, kNrCalibrationSize);
        });
}

VOND_RESULT VOND_MMRf_GetRouteConfigV7_r(uint32_t h, uint32_t t, const uint32_t *radioKind,
                                         SMMRfRouteConfigV7 *result)
{
    return Run({EFunction::RouteConfig, h, t, RequestOf(radioKind), AnswerOf(result)},
               [&](SDut &dut) { return AnswerRouteConfig(dut.profile, *radioKind, *result); });
}

VOND_RESULT VOND_NRf_GetBandRxInfo_r(uint32_t h, uint32_t t, SNRfBandRxInfo *result)
{
    return Run({EFunction::BandRxInfo, h, t, {}, AnswerOf(result)}, [&](SDut &dut) {
        AnswerBandRxInfo(dut.profile, *result);
        return SVerdict();
    });
}

VOND_RESULT VOND_NRf_GetRxRouteValues_r(uint32_t h, uint32_t t, SNRfRxRouteValues *result)
{
    return Run({EFunction::RxRouteValues, h, t, {}, AnswerOf(result)}, [&](SDut &dut) {
        AnswerRxRouteValues(dut.profile, *result);
        return SVerdict();
    });
}

VOND_RESULT VOND_MMRf_GetRouteDetailV7_r(uint32_t h, uint32_t t,
                                         const SMMRfRouteDetailReqV7 *request,
                                         SMMRfRouteDetailCnfV7 *result)
{
    return Run({EFunction::RouteDetail, h, t, RequestOf(request), AnswerOf(result)},
               [&](SDut &dut) { return AnswerRouteDetail(dut.profile, *request, *result); });
}

const char *VOND_ERf_GetChipIdName(uint32_t chipId)
{
    return NameOfChip(EFunction::LteChipName, chipId, &SProfile::lteChip);
}

const char *VOND_NRf_GetChipIdName(uint32_t chipId)
{
    return NameOfChip(EFunction::NrChipName, chipId, &SProfile::nrChip);
}

VOND_RESULT VOND_NRf_PuschTxV7_r(uint32_t h, uint32_t t, const SNrPuschTxCmdV7 *command,
                                 uint32_t *status)
{
    return Run({EFunction::PuschTx, h, t, RequestOf(command), {}, status},
               [&](SDut &dut) { return dut.radio.StartPuschTx(dut.profile, *command); });
}

VOND_RESULT VOND_NRf_RsrpV7_r(uint32_t h, uint32_t t, const SNrRsrpCmdV7 *command, uint32_t *status)
{
    return Run({EFunction::Rsrp, h, t, RequestOf(command), {}, status},
               [&](SDut &dut) { return dut.radio.StartRsrp(dut.profile, *command); });
}

VOND_RESULT VOND_NRf_GetDlFreqV7_r(uint32_t h, uint32_t t, const SNrDlFreqCmdV7 *command,
                                   SNrDlFreqCnfV7 *result)
{
    uint32_t *const status = result != nullptr ? &result->status : nullptr;
    return Run({EFunction::GetDlFreq, h, t, RequestOf(command), AnswerOf(result), status},
               [&](SDut &dut) { return dut.radio.DlFrequency(dut.profile, *command, *result); });
}

VOND_RESULT VOND_MMRf_GainSearchV7_r(uint32_t h, uint32_t t, const SMMGainSearchCmdV7 *command,
                                     SMMGainSearchCnfV7 *result)
{
    return Run({EFunction::GainSearch, h, t, RequestOf(command), AnswerOf(result)},
               [&](SDut &dut) { return dut.radio.GainSearch(dut.profile, *command, *result); });
}

VOND_RESULT VOND_MMRf_RssiV7_r(uint32_t h, uint32_t t, const SMMRssiCmdV7 *command,
                               SMMRssiCnfV7 *result)
{
    return Run({EFunction::Rssi, h, t, RequestOf(command), AnswerOf(result)}, [&](SDut &dut) {
        CFlashCalibration calibration = dut.Calibration();
        return dut.radio.Rssi(dut.profile, calibration, *command, *result);
    });
}

VOND_RESULT VOND_MMRf_SingleToneTxV7_r(uint32_t h, uint32_t t, const SMMSingleToneCmdV7 *command)
{
    return Run({EFunction::SingleToneTx, h, t, RequestOf(command)},
               [&](SDut &dut) { return dut.radio.StartSingleTone(dut.profile, *command); });
}

VOND_RESULT VOND_MMRf_ContRxV7_r(uint32_t h, uint32_t t, const SMMContRxCmdV7 *command)
{
    return Run({EFunction::ContRx, h, t, RequestOf(command)},
               [&](SDut &dut) { return dut.radio.StartContRx(dut.profile, *command); });
}

VOND_RESULT VOND_MMRf_GetPdValueV7_r(uint32_t h, uint32_t t, uint32_t kind, int16_t *value)
{
    return Run({EFunction::GetPdValue, h, t, RequestOf(&kind), AnswerOf(value)}, [&](SDut &dut) {
        CFlashCalibration calibration = dut.Calibration();
        return dut.radio.PdValue(dut.profile, calibration, kind, *value);
    });
}

VOND_RESULT VOND_NRf_GetMixRxReportV7_r(uint32_t h, uint32_t t,
                                        NRfTestResult_GetMixRxReportV7 *report)
{
    return Run({EFunction::GetMixRxReport, h, t, {}, AnswerOf(report)}, [&](SDut &dut) {
        CFlashCalibration calibration = dut.Calibration();
        dut.radio.MixRxReport(dut.profile, calibration, *report);
        return SVerdict();
    });
}

VOND_RESULT VOND_NRf_ResetMixRxReportV7_r(uint32_t h, uint32_t t)
{
    return Run({EFunction::ResetMixRxReport, h, t}, [](SDut &dut) {
        dut.radio.ResetMixRx();
        return SVerdict();
    });
}

VOND_RESULT VOND_NRf_TestStop_r(uint32_t h, uint32_t t)
{
    return Run({EFunction::NrTestStop, h, t}, [](SDut &dut) {
        dut.radio.StopNr();
        return SVerdict();
    });
}

VOND_RESULT VOND_MMRf_TestStopV7_r(uint32_t h, uint32_t t, uint32_t kind)
{
    return Run({EFunction::MultiModeTestStop, h, t, RequestOf(&kind)},
               [&](SDut &dut) { return dut.radio.StopMultiMode(kind); });
}

VOND_RESULT VOND_MMRf_GetCalBlkInfoV7_r(uint32_t h, uint32_t t, uint32_t radioKind,
                                        SMMCalBlkInfoCnfV7 *result)
{
    return Run(
        {EFunction::GetCalBlkInfo, h, t, RequestOf(&radioKind), AnswerOf(result)},
        [&](SDut &dut) { return AnswerCalBlkInfo(dut.profile, dut.flash, radioKind, *result); });
}

VOND_RESULT VOND_MMRf_GetCalDataV7_r(uint32_t h, uint32_t t, const SMMGetCalDataReqV7 *request,
                                     SMMGetCalDataCnfV7 *result)
{
    return Run({EFunction::GetCalData, h, t, RequestOf(request), AnswerOf(result)}, [&](SDut &dut) {
        AnswerCalData(dut.profile, dut.flash, *request, *result);
        return SVerdict();
    });
}

VOND_RESULT VOND_MMRf_SetCalDataV7_r(uint32_t h, uint32_t t, const SMMSetCalDataReqV7 *request,
                                     SMMSetCalDataCnfV7 *result)
{
    return Run({EFunction::SetCalData, h, t, RequestOf(request), AnswerOf(result)}, [&](SDut &dut) {
        const SFlashOutcome outcome =
            StoreCalData(dut.profile, dut.flash, *request, *result, dut.faults.OfFlash());
        dut.faults.CountBlocks(outcome.blocks, outcome.isCut);
        if (!outcome.isCut)
            return SVerdict();
        dut.LosePower();
        return SVerdict(EResult::NotConnected);
    });
}

}  // extern "C"
#pragma GCC visibility pop
