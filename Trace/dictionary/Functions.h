// The functions of VondCore and VondApp as one table: names for faults, gates and the journal, and
// what the call wrapper has to know about each.
//
//   const SFunction &function = FunctionOf(EFunction::ContRx);   // function.name is its C name
#pragma once

#include <cstddef>
#include <string_view>

enum class EFunction
{
    QueryFunctionSupported,
    GetErrorString,
    LteCapability,
    MultiModeCapability,
    NrCapability,
    RouteConfig,
    BandRxInfo,
    RxRouteValues,
    RouteDetail,
    LteChipName,
    NrChipName,
    PuschTx,
    Rsrp,
    GetDlFreq,
    GainSearch,
    Rssi,
    SingleToneTx,
    ContRx,
    GetPdValue,
    GetMixRxReport,
    ResetMixRxReport,
    NrTestStop,
    MultiModeTestStop,
    GetCalBlkInfo,
    GetCalData,
    SetCalData,
    ModemActiveIndex,
    ModemService,
    Count
};

enum class EFunctionKind
{
    Library,     // answered by the library itself: no target, no timeout; returns a text
    Connection,  // answered from the connection's state: no timeout
    Target       // reaches the target
};

struct SFunction
{
    EFunction id;
    std::string_view name;
    EFunctionKind kind;
    bool hasStatus;  // answers a status word
};

// Rows in the order of EFunction.
const SFunction &FunctionOf(EFunction id);
// Null for a name that is in no row.
const SFunction *FindFunction(std::string_view name);
