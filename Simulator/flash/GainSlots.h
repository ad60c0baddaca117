// The gain modes that have a slot in the loss tables, in slot order.
//
//   for (const auto &[bigG, smallG] : GainSlots(profile.gain[0])) ...
#pragma once

#include <utility>
#include <vector>

#include "Vond/VondCalBlocks.h"
#include "Vond/VondCapabilityRecords.h"

inline std::vector<std::pair<int, int>> GainSlots(const SMMRfRxGainInfoV7 &gain)
{
    std::vector<std::pair<int, int>> slots;
    for (int bigG = 0; bigG < kVondGainRows; ++bigG) {
        for (int smallG = 0; smallG < kVondGainColumns; ++smallG) {
            if (gain.t1[bigG][smallG] == 1 && slots.size() < std::size_t(kVondLossGainSlots))
                slots.emplace_back(bigG, smallG);
        }
    }
    return slots;
}
