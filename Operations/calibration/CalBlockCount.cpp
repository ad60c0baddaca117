#include "Operations/calibration/CalBlockCount.h"

#include <algorithm>

#include "Support/Log.h"

uint32_t FileBlockCount(const uint32_t (&freq)[VOND_CAL_MAX_SUBBANDS])
{
    const uint32_t *end = std::find(freq, freq + VOND_CAL_MAX_SUBBANDS - 1, 0u);
    const auto entries = static_cast<uint32_t>(end - freq) + 1;
    const uint32_t blocks = (entries + VOND_CAL_BLOCK_SUBBANDS - 1) / VOND_CAL_BLOCK_SUBBANDS;
    qCDebug(lcCalibration) << "section blk count" << blocks;
    return blocks;
}
