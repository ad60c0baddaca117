#include "Simulator/basis/Bands.h"

namespace {

constexpr SFreqLimits kNone = {};

constexpr SBandRow kBandRows[] = {
    {1, {1920000, 1980000}, {2110000, 2170000}},
    {2, {1850000, 1910000}, {1930000, 1990000}},
    {3, {1710000, 1785000}, {1805000, 1880000}},
    {5, {824000, 849000}, {869000, 894000}},
    {7, {2500000, 2570000}, {2620000, 2690000}},
    {8, {880000, 915000}, {925000, 960000}},
    {12, {699000, 716000}, {729000, 746000}},
    {20, {832000, 862000}, {791000, 821000}},
    {25, {1850000, 1915000}, {1930000, 1995000}},
    {28, {703000, 748000}, {758000, 803000}},
    {29, kNone, {717000, 728000}},
    {34, {2010000, 2025000}, {2010000, 2025000}},
    {38, {2570000, 2620000}, {2570000, 2620000}},
    {39, {1880000, 1920000}, {1880000, 1920000}},
    {40, {2300000, 2400000}, {2300000, 2400000}},
    {41, {2496000, 2690000}, {2496000, 2690000}},
    {50, {1432000, 1517000}, {1432000, 1517000}},
    {51, {1427000, 1432000}, {1427000, 1432000}},
    {66, {1710000, 1780000}, {2110000, 2200000}},
    {70, {1695000, 1710000}, {1995000, 2020000}},
    {71, {663000, 698000}, {617000, 652000}},
    {74, {1427000, 1470000}, {1475000, 1518000}},
    {75, kNone, {1432000, 1517000}},
    {76, kNone, {1427000, 1432000}},
    {77, {3300000, 4200000}, {3300000, 4200000}},
    {78, {3300000, 3800000}, {3300000, 3800000}},
    {79, {4400000, 5000000}, {4400000, 5000000}},
    {80, {1710000, 1785000}, kNone},
    {81, {880000, 915000}, kNone},
    {82, {832000, 862000}, kNone},
    {83, {703000, 748000}, kNone},
    {84, {1920000, 1980000}, kNone},
    {86, {1710000, 1780000}, kNone},
};

struct SChannel
{
    uint32_t bandwidth;
    uint32_t blocks[3];  // by subcarrier spacing; 0: not defined
};

constexpr SChannel kChannels[] = {
    {5000, {25, 11, 0}},     {10000, {52, 24, 11}},   {15000, {79, 38, 18}},
    {20000, {106, 51, 24}},  {25000, {133, 65, 31}},  {30000, {160, 78, 38}},
    {40000, {216, 106, 51}}, {50000, {270, 133, 65}}, {60000, {0, 162, 79}},
    {70000, {0, 189, 93}},   {80000, {0, 217, 107}},  {90000, {0, 245, 121}},
    {100000, {0, 273, 135}},
};

constexpr uint32_t kCoarseRasterFrom = 3000000;

}  // namespace

const SBandRow *FindBandRow(uint32_t band)
{
    for (const SBandRow &row : kBandRows) {
        if (row.band == band)
            return &row;
    }
    return nullptr;
}

bool IsChannelBandwidth(uint32_t kHz)
{
    for (const SChannel &channel : kChannels) {
        if (channel.bandwidth == kHz)
            return true;
    }
    return false;
}

uint32_t ResourceBlocks(uint32_t scs, uint32_t bandwidthKhz)
{
    for (const SChannel &channel : kChannels) {
        if (channel.bandwidth == bandwidthKhz && scs < 3)
            return channel.blocks[scs];
    }
    return 0;
}

bool IsOnRaster(uint32_t kHz)
{
    if (kHz < kCoarseRasterFrom)
        return kHz % 5 == 0;
    return (kHz - kCoarseRasterFrom) % 15 == 0;
}
