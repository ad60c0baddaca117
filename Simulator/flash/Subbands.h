// A value of a calibration record at any frequency: linear between the subbands, flat outside of
// them. A record may hold anything, so their order counts for nothing; a frequency of 0 is no
// subband.
//
//   const double gain = AtFrequency(blocks, kHz, [](const SAptBlock &block, int i) {
//       return block.pa[0].paGain[i] / 32.0;
//   });
#pragma once

#include <cstdint>
#include <vector>

#include "Vond/VondCalBlocks.h"

// A table by temperature: entry normalIndex is that of 25 degrees Celsius, each further one of 15
// degrees more. Linear in between, flat outside.
double AtTemperature(const int16_t (&steps)[kVondCalTemperatures], int normalIndex, double celsius);

template <class Block, class Value>
double AtFrequency(const std::vector<Block> &blocks, uint32_t kHz, const Value &value)
{
    struct SPoint
    {
        const Block *block = nullptr;
        int index = 0;
        uint32_t kHz = 0;
    };
    SPoint below;
    SPoint above;
    for (const Block &block : blocks) {
        for (int i = 0; i < kVondCalBlockSubbands; ++i) {
            const uint32_t at = block.freq[i];
            if (at != 0 && at <= kHz && (below.block == nullptr || at > below.kHz))
                below = {&block, i, at};
            if (at >= kHz && (above.block == nullptr || at < above.kHz))
                above = {&block, i, at};
        }
    }
    if (below.block == nullptr && above.block == nullptr)
        return 0.0;
    if (below.block == nullptr || above.block == nullptr || below.kHz == above.kHz) {
        const SPoint &only = below.block != nullptr ? below : above;
        return value(*only.block, only.index);
    }
    const double share = double(kHz - below.kHz) / double(above.kHz - below.kHz);
    const double low = value(*below.block, below.index);
    return low + share * (value(*above.block, above.index) - low);
}
