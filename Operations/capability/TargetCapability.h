// What the DUT can do: a stateless reader of the cached capability reads.
//
// Any number of readers share the one cache. Each question first makes sure that its read has been
// attempted, which blocks the calling thread on the link the first time after a reset; later
// questions answer at once. A failed read is not reported where it happens: the answer is false,
// null, 0 or empty, and the caller words its own message. Called under the core's lock; pointers
// stay valid for the life of the process, their content until the next reset is carried out.
//
//   CTargetCapability target;
//   if (target.GetNrGeneration() == 1)
//       target.GetBandList(EBandDirection::Rx, bands);
#pragma once

#include <cstdint>
#include <vector>

#include "Operations/capability/CapabilityInfo.h"

class CTargetCapability
{
public:
    // RF chip ids, 0 when the read failed. Names for them come from the closed library.
    uint32_t GetRfChipIdLte() const;
    uint32_t GetRfChipIdNr() const;
    // The NR chip's name; null for an id that the closed library does not know.
    const char *GetRfChipNameNr() const;

    // Multi-RAT world mode: is the information there, and which RATs (0x40 is NR). 0 when it is
    // not.
    bool IsRatInfoValid() const;
    uint32_t GetRatMask() const;

    SVondSupportFlags GetMmSupportFlags() const;
    SVondSupportFlags GetNrSupportFlags() const;
    SVondSupportFlags GetNrRouteSupportFlags() const;

    // Modem generation, 0 when unknown. Tests and calibration run on generation 1 alone.
    uint8_t GetNrGeneration() const;

    // Route tables; null when the read failed.
    const SMMRfRouteTableV7 *GetRouteTableLte() const;
    const SMMRfRouteTableV7 *GetRouteTableNr() const;

    // RX gain information of a power mode (0 HPM, 1 LPM); null when the read failed or the mode is
    // out of range.
    const SMMRfRxGainInfoV7 *GetSupportRxGainInfoV7(ERadioKind kind, uint32_t pwrMode) const;
    // Gain mode flag of the type 2 RX route with that number; 0 when there is none.
    uint8_t GetType2RouteGainFlag(uint16_t route) const;

    // Frequency limits of single routes. True even when nothing was copied, provided the generation
    // was readable.
    bool GetFreqRangeBlock(SRouteFreqRangeV7 &range) const;

    // Bands of a direction in the DUT's order. True with an empty list on a generation other than
    // 1; false when a read failed.
    bool GetBandList(EBandDirection direction, std::vector<SBandCapEntry> &bands) const;

    // Routes in table order, RX type 1 before type 2. With hardware the detail read is made and
    // copied. False, with an empty list, when a read failed.
    bool GetTxCommonPathV7(std::vector<STxRouteInfoV7> &routes, bool withHardware) const;
    bool GetRxCommonPathV7(std::vector<SRxRouteInfoV7> &routes, bool withHardware) const;

    // Forgets all that was read; the next question asks the target again. Any thread.
    static void Reset();
};
