// What a command must fulfil before the radio acts on it: bands, routes, frequencies, carriers.
//
// Each check returns the first refusal that it finds. Checks of functions with a status word refuse
// a frequency by EStatus::FreqMismatch, the others by EResult::Frequency; everything else is an
// EResult. No state, no locks.
#pragma once

#include "Simulator/basis/Results.h"
#include "Simulator/profile/Profile.h"
#include "Vond/VondCommandRecords.h"

constexpr uint8_t kHighestSlotFormat = 55;

// An RX route as a command names it.
struct SRxRouteChoice
{
    const SProfileRxRoute *row = nullptr;
    bool type2 = false;
};

// A carrier frequency, and the route that is to carry it when the command names one.
struct SCarrierPlace
{
    uint16_t band = 0;
    uint32_t kHz = 0;
    bool withRoute = false;
    uint16_t route = 0;
    bool hasStatus = false;  // the function has a status word, and is bound to the NR-ARFCN raster
};

SVerdict CheckUplink(const SProfile &profile, const SCarrierPlace &place);
SVerdict CheckDownlink(const SProfile &profile, const SCarrierPlace &place);
// What the transmitter or receiver of the place takes: the route's own limits, otherwise those of
// the listed band.
SFreqLimits UplinkLimits(const SProfile &profile, const SCarrierPlace &place);
SFreqLimits DownlinkLimits(const SProfile &profile, const SCarrierPlace &place);

// Finds the RX route that a multi-mode command means; routeKind 3 is right for a type 2 route with
// gain mode flag, 1 for any other.
SVerdict ChooseRxRoute(const SProfile &profile, uint16_t band, uint16_t route, uint32_t routeKind,
                       SRxRouteChoice &choice);
// Path and single-path words against the type of the route: type 1 has path 0 alone.
SVerdict CheckPath(const SRxRouteChoice &choice, uint8_t singlePath, uint32_t path);

struct SAllocation
{
    uint32_t scs = 0;
    uint32_t bandwidth = 0;
    uint16_t vrbStart = 0;
    uint16_t vrbLength = 0;
    uint32_t mcsMode = 0;
    int16_t txPower = 0;  // dBm, 1/256 dB
};

SVerdict CheckChannel(uint32_t scs, uint32_t bandwidth);
SVerdict CheckAllocation(const SAllocation &allocation);
SVerdict CheckTxPower(int16_t power);
// RF gain in 1/32 dB within what the receiver can set.
SVerdict CheckRfGain(int16_t gain);
SVerdict CheckDigitalGain(int16_t gain);
SVerdict CheckGainIndex(uint8_t index);

SVerdict CheckContRx(const SProfile &profile, const SMMContRxCmdV7 &command);
SVerdict CheckRssi(const SProfile &profile, const SMMRssiCmdV7 &command);
SVerdict CheckGainSearch(const SProfile &profile, const SMMGainSearchCmdV7 &command);
SVerdict CheckSingleTone(const SProfile &profile, const SMMSingleToneCmdV7 &command);
SVerdict CheckPuschTx(const SProfile &profile, const SNrPuschTxCmdV7 &command);
SVerdict CheckRsrp(const SProfile &profile, const SNrRsrpCmdV7 &command);
