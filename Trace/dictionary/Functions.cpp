#include "Trace/dictionary/Functions.h"

#include <array>

#include "Trace/dictionary/CalRecordLayouts.h"
#include "Trace/dictionary/CapabilityLayouts.h"
#include "Trace/dictionary/CommandLayouts.h"
#include "Trace/dictionary/ResultLayouts.h"
#include "Trace/dictionary/RouteDetailLayouts.h"
#include "Trace/dictionary/ScalarLayouts.h"

namespace {

using K = EFunctionKind;
using F = EFunction;
using S = EStatusPlace;

constexpr std::size_t kFunctionCount = static_cast<std::size_t>(EFunction::Count);

constexpr std::array<SFunction, kFunctionCount> kFunctions = {{
    {.id = F::QueryFunctionSupported,
     .name = "VOND_QueryFunctionSupported_r",
     .request = &kFunctionNameLayout},
    {.id = F::GetErrorString,
     .name = "VOND_GetErrorString",
     .kind = K::Library,
     .request = &kResultCodeLayout,
     .answer = &kAnswerTextLayout},
    {.id = F::LteCapability,
     .name = "VOND_ERf_GetRfCapability_r",
     .request = &kLayoutOf<SVondCapabilityReq>,
     .answer = &kLayoutOf<SERfCapability>},
    {.id = F::MultiModeCapability,
     .name = "VOND_MMRf_GetRfCapability_r",
     .request = &kLayoutOf<SVondCapabilityReq>,
     .answer = &kLayoutOf<SMMRfCapability>},
    {.id = F::NrCapability,
     .name = "VOND_NRf_GetRfCapability_r",
     .request = &kLayoutOf<SVondCapabilityReq>,
     .answer = &kLayoutOf<SNRfCapability>},
    {.id = F::RouteConfig,
     .name = "VOND_MMRf_GetRouteConfigV7_r",
     .request = &kRadioKindLayout,
     .answer = &kLayoutOf<SMMRfRouteConfigV7>},
    {.id = F::BandRxInfo, .name = "VOND_NRf_GetBandRxInfo_r", .answer = &kLayoutOf<SNRfBandRxInfo>},
    {.id = F::RxRouteValues,
     .name = "VOND_NRf_GetRxRouteValues_r",
     .answer = &kLayoutOf<SNRfRxRouteValues>},
    {.id = F::RouteDetail,
     .name = "VOND_MMRf_GetRouteDetailV7_r",
     .request = &kLayoutOf<SMMRfRouteDetailReqV7>,
     .answer = &kLayoutOf<SMMRfRouteDetailCnfV7>},
    {.id = F::LteChipName,
     .name = "VOND_ERf_GetChipIdName",
     .kind = K::Library,
     .request = &kChipIdLayout,
     .answer = &kAnswerTextLayout},
    {.id = F::NrChipName,
     .name = "VOND_NRf_GetChipIdName",
     .kind = K::Library,
     .request = &kChipIdLayout,
     .answer = &kAnswerTextLayout},
    {.id = F::PuschTx,
     .name = "VOND_NRf_PuschTxV7_r",
     .status = S::Argument,
     .request = &kLayoutOf<SNrPuschTxCmdV7>},
    {.id = F::Rsrp,
     .name = "VOND_NRf_RsrpV7_r",
     .status = S::Argument,
     .request = &kLayoutOf<SNrRsrpCmdV7>},
    {.id = F::GetDlFreq,
     .name = "VOND_NRf_GetDlFreqV7_r",
     .status = S::Answer,
     .request = &kLayoutOf<SNrDlFreqCmdV7>,
     .answer = &kLayoutOf<SNrDlFreqCnfV7>},
    {.id = F::GainSearch,
     .name = "VOND_MMRf_GainSearchV7_r",
     .request = &kLayoutOf<SMMGainSearchCmdV7>,
     .answer = &kLayoutOf<SMMGainSearchCnfV7>},
    {.id = F::Rssi,
     .name = "VOND_MMRf_RssiV7_r",
     .request = &kLayoutOf<SMMRssiCmdV7>,
     .answer = &kLayoutOf<SMMRssiCnfV7>},
    {.id = F::SingleToneTx,
     .name = "VOND_MMRf_SingleToneTxV7_r",
     .request = &kLayoutOf<SMMSingleToneCmdV7>},
    {.id = F::ContRx, .name = "VOND_MMRf_ContRxV7_r", .request = &kLayoutOf<SMMContRxCmdV7>},
    {.id = F::GetPdValue,
     .name = "VOND_MMRf_GetPdValueV7_r",
     .request = &kPdKindLayout,
     .answer = &kPdValueLayout},
    {.id = F::GetMixRxReport,
     .name = "VOND_NRf_GetMixRxReportV7_r",
     .answer = &kLayoutOf<NRfTestResult_GetMixRxReportV7>},
    {.id = F::ResetMixRxReport, .name = "VOND_NRf_ResetMixRxReportV7_r"},
    {.id = F::NrTestStop, .name = "VOND_NRf_TestStop_r"},
    {.id = F::MultiModeTestStop, .name = "VOND_MMRf_TestStopV7_r", .request = &kStopKindLayout},
    {.id = F::GetCalBlkInfo,
     .name = "VOND_MMRf_GetCalBlkInfoV7_r",
     .request = &kRadioKindLayout,
     .answer = &kLayoutOf<SMMCalBlkInfoCnfV7>},
    {.id = F::GetCalData,
     .name = "VOND_MMRf_GetCalDataV7_r",
     .request = &kLayoutOf<SMMGetCalDataReqV7>,
     .answer = &kLayoutOf<SMMGetCalDataCnfV7>},
    {.id = F::SetCalData,
     .name = "VOND_MMRf_SetCalDataV7_r",
     .request = &kLayoutOf<SMMSetCalDataReqV7>,
     .answer = &kLayoutOf<SMMSetCalDataCnfV7>},
    {.id = F::ModemActiveIndex,
     .name = "VondConn_GetMdActiveIdx",
     .kind = K::Connection,
     .answer = &kModemIndexLayout},
    {.id = F::ModemService,
     .name = "VondConn_GetMdSrv",
     .kind = K::Connection,
     .request = &kModemIndexLayout,
     .answer = &kServiceTypeLayout},
}};

constexpr bool InOrder()
{
    for (std::size_t i = 0; i < kFunctionCount; ++i) {
        if (static_cast<std::size_t>(kFunctions[i].id) != i)
            return false;
    }
    return true;
}
static_assert(InOrder(), "the rows stand in the order of EFunction");

static_assert(HasWhatDecides(kLayoutOf<SMMRssiCmdV7>, kLayoutOf<SMMRssiCnfV7>),
              "the field that the answer hangs on is one of its request");
static_assert(CanDecide(kLayoutOf<SNrDlFreqCnfV7>, "status"), "the answer has its status word");

}  // namespace

const SFunction &FunctionOf(EFunction id)
{
    return kFunctions[static_cast<std::size_t>(id)];
}

const SFunction *FindFunction(std::string_view name)
{
    for (const SFunction &function : kFunctions) {
        if (function.name == name)
            return &function;
    }
    return nullptr;
}
