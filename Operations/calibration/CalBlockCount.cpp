#include "Operations/calibration/CalBlockCount.h"

#include <algorithm>

#include "Support/Log.h"

uint32_t FileBlockCount(const uint32_t (&freq)[kVondCalMaxSubbands])
{
    const uint32_t *end = std::find(freq, freq + kVondCalMaxSubbands - 1, 0u);
    const auto entries = static_cast<uint32_t>(end - freq) + 1;
    const uint32_t blocks = (entries + kVondCalBlockSubbands - 1) / kVondCalBlockSubbands;
    qCDebug(lcCalibration) << "section blk count" << blocks;
    return blocks;
}
