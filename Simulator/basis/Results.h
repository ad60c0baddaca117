// Results and status words of the simulated DUT.
//
// EResult is what a call returns, worded by ResultText for VOND_GetErrorString; EStatus is the
// target's own verdict in the functions that have a status word. SVerdict carries both. A refusal
// with a status is a command that reached the target, so its result is success.
//
//   return EResult::UnknownBand;         // as an SVerdict
#pragma once

#include <cstdint>

// The numbers are part of the journal and of fault entries, so they stay. 11 is left out: callers
// give it a meaning of its own for calibration data.
enum class EResult : int32_t
{
    Success = 0,
    NotConnected = 1,
    TimedOut = 2,
    NotOffered = 3,
    InjectedFault = 4,
    NullPointer = 5,
    RecordSize = 6,
    TestRunning = 7,
    UnknownBand = 8,
    UnknownRoute = 9,
    RouteNotOnBand = 10,
    RouteKind = 12,
    RouteDirection = 13,
    Frequency = 14,
    Path = 15,
    Bandwidth = 16,
    BandwidthRegion = 17,
    PowerMode = 18,
    Gain = 19,
    GainMode = 20,
    TxPower = 21,
    Scs = 22,
    ResourceBlocks = 23,
    Modulation = 24,
    SlotFormat = 25,
    CarrierCount = 26,
    Mimo = 27,
    MeasureCount = 28,
    FrequencyCount = 29,
    RadioKind = 30,
    StopKind = 31,
    PdKind = 32,
    NotTransmitting = 33,
    Modem = 34,
    CellId = 35,
    Tone = 36,
    Flag = 37,
    RoutePairing = 38,
    Internal = 39
};

enum class EStatus : uint32_t
{
    Success = 0,
    FreqMismatch = 1,
    CellNotExist = 2,
    MibDecodeError = 3,
    ScellNotExist = 4
};

struct SVerdict
{
    EResult result = EResult::Success;
    EStatus status = EStatus::Success;

    SVerdict() = default;
    SVerdict(EResult value) : result(value) {}
    SVerdict(EStatus value) : status(value) {}

    bool Ok() const { return result == EResult::Success && status == EStatus::Success; }
};

// Never null; a number that is in no row gives "Unknown result".
const char *ResultText(int32_t result);
