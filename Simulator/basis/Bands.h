// 3GPP NR facts that the simulated DUT checks commands against: band limits (TS 38.101-1 table
// 5.2-1), channel bandwidths and their resource blocks (table 5.3.2-1), the NR-ARFCN raster
// (TS 38.104 table 5.4.2.1-1). Frequencies and bandwidths are kHz.
#pragma once

#include <cstdint>

// Both 0: the band has no such direction.
struct SFreqLimits
{
    uint32_t low = 0;
    uint32_t high = 0;

    bool Exists() const { return high != 0; }
    bool Holds(uint32_t kHz) const { return Exists() && kHz >= low && kHz <= high; }
};

struct SBandRow
{
    uint16_t band;
    SFreqLimits uplink;
    SFreqLimits downlink;
};

// Null for a band that is in no row.
const SBandRow *FindBandRow(uint32_t band);
// The bandwidth exists at one subcarrier spacing at least.
bool IsChannelBandwidth(uint32_t kHz);
// Resource blocks of a channel; 0 when the bandwidth does not exist at that spacing (0: 15 kHz,
// 1: 30 kHz, 2: 60 kHz).
uint32_t ResourceBlocks(uint32_t scs, uint32_t bandwidthKhz);
// The frequency lies on the NR-ARFCN raster: 5 kHz steps below 3 GHz, 15 kHz steps above.
bool IsOnRaster(uint32_t kHz);
