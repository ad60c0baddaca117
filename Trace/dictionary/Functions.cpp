#include "Trace/dictionary/Functions.h"

#include <array>

namespace {

using K = EFunctionKind;
using F = EFunction;

constexpr std::size_t kFunctionCount = static_cast<std::size_t>(EFunction::Count);

constexpr std::array<SFunction, kFunctionCount> kFunctions = {{
    {F::QueryFunctionSupported, "VOND_QueryFunctionSupported_r", K::Target, false},
    {F::GetErrorString, "VOND_GetErrorString", K::Library, false},
    {F::LteCapability, "VOND_ERf_GetRfCapability_r", K::Target, false},
    {F::MultiModeCapability, "VOND_MMRf_GetRfCapability_r", K::Target, false},
    {F::NrCapability, "VOND_NRf_GetRfCapability_r", K::Target, false},
    {F::RouteConfig, "VOND_MMRf_GetRouteConfigV7_r", K::Target, false},
    {F::BandRxInfo, "VOND_NRf_GetBandRxInfo_r", K::Target, false},
    {F::RxRouteValues, "VOND_NRf_GetRxRouteValues_r", K::Target, false},
    {F::RouteDetail, "VOND_MMRf_GetRouteDetailV7_r", K::Target, false},
    {F::LteChipName, "VOND_ERf_GetChipIdName", K::Library, false},
    {F::NrChipName, "VOND_NRf_GetChipIdName", K::Library, false},
    {F::PuschTx, "VOND_NRf_PuschTxV7_r", K::Target, true},
    {F::Rsrp, "VOND_NRf_RsrpV7_r", K::Target, true},
    {F::GetDlFreq, "VOND_NRf_GetDlFreqV7_r", K::Target, true},
    {F::GainSearch, "VOND_MMRf_GainSearchV7_r", K::Target, false},
    {F::Rssi, "VOND_MMRf_RssiV7_r", K::Target, false},
    {F::SingleToneTx, "VOND_MMRf_SingleToneTxV7_r", K::Target, false},
    {F::ContRx, "VOND_MMRf_ContRxV7_r", K::Target, false},
    {F::GetPdValue, "VOND_MMRf_GetPdValueV7_r", K::Target, false},
    {F::GetMixRxReport, "VOND_NRf_GetMixRxReportV7_r", K::Target, false},
    {F::ResetMixRxReport, "VOND_NRf_ResetMixRxReportV7_r", K::Target, false},
    {F::NrTestStop, "VOND_NRf_TestStop_r", K::Target, false},
    {F::MultiModeTestStop, "VOND_MMRf_TestStopV7_r", K::Target, false},
    {F::GetCalBlkInfo, "VOND_MMRf_GetCalBlkInfoV7_r", K::Target, false},
    {F::GetCalData, "VOND_MMRf_GetCalDataV7_r", K::Target, false},
    {F::SetCalData, "VOND_MMRf_SetCalDataV7_r", K::Target, false},
    {F::ModemActiveIndex, "VondConn_GetMdActiveIdx", K::Connection, false},
    {F::ModemService, "VondConn_GetMdSrv", K::Connection, false},
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
