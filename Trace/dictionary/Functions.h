// The functions of VondCore and VondApp as one table: names, what each asks and answers, and where its
// status word is.
//
//   const SFunction &function = FunctionOf(EFunction::ContRx);   // function.name is its C name
//   function.request->name                                       // "SMMContRxCmdV7"
#pragma once

#include <cstddef>
#include <string_view>

#include "Trace/dictionary/Soundness.h"

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

// Where the target's own verdict is. The verdict of a calibration transfer is a field of its answer.
enum class EStatusPlace
{
    None,
    Argument,  // behind a pointer of its own
    Answer     // the answer's field "status"
};

struct SFunction
{
    EFunction id;
    std::string_view name;
    EFunctionKind kind = EFunctionKind::Target;
    EStatusPlace status = EStatusPlace::None;
    const SLayout *request = nullptr;  // null: asks nothing but handle and timeout
    const SLayout *answer = nullptr;   // null: answers nothing but result and status

    constexpr bool HasStatus() const { return status != EStatusPlace::None; }
    // Does the answer have a union whose layout a field of the request decides?
    bool HangsOnRequest() const
    {
        return answer != nullptr && !ChoiceOfRequest(*answer).field.empty();
    }
};

// Rows in the order of EFunction.
const SFunction &FunctionOf(EFunction id);
// Null for a name that is in no row.
const SFunction *FindFunction(std::string_view name);
