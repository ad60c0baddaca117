#include "Operations/calibration/PathLossGains.h"

#include "Operations/calibration/CalKeys.h"

namespace {

constexpr char kType1Form[] = "RX loss %s G%d,g%d";
constexpr char kPartialOnForm[] = "RX srx path%d partial on loss for %s G%d,g%d";
constexpr char kGainByGainForm[] = "RX srx path%d gbg loss for %s G%d,g%d,g%d";
constexpr const char *kModeNames[] = {"hpm", "lpm"};  // by EPowerMode

struct SGain
{
    int bigG = 0;
    int smallG = 0;
};

std::string Text(int number)
{
    return std::to_string(number);
}

std::string ModeName(EPowerMode mode)
{
    return kModeNames[static_cast<int>(mode)];
}

// The modes of the gain modes, in their order. False when there are too many.
bool SlotsOf(const SMMRfRxGainInfoV7 &gains, std::vector<SGain> &modes)
{
    for (int bigG = 0; bigG < kVondGainRows; ++bigG) {
        for (int smallG = 0; smallG < kVondGainColumns; ++smallG) {
            if (gains.t1[bigG][smallG] == 1)
                modes.push_back({bigG, smallG});
        }
    }
    return modes.size() <= kVondLossGainSlots;
}

void AppendPartialOn(const std::vector<SGain> &modes, int srxPath, EPowerMode mode,
                     std::vector<SGainKey> &keys)
{
    int slot = 0;
    for (const SGain &gain : modes) {
        keys.push_back({FormText(kPartialOnForm, {Text(srxPath), ModeName(mode), Text(gain.bigG),
                                                  Text(gain.smallG)}),
                        mode,
                        {VondPartialOnPair(EVondRxPath::Main, srxPath, slot),
                         VondPartialOnPair(EVondRxPath::Div, srxPath, slot)},
                        EGainKey::Required});
        ++slot;
    }
}

EGainKey GainByGainUse(const SMMRfRxGainInfoV7 &gains, const SGain &gain, int subGain)
{
    if (gains.t1[gain.bigG][gain.smallG] == 1)
        return EGainKey::Required;
    const auto &together = gains.t2[gain.bigG];
    const bool isSet = together[gain.smallG][subGain] == 1 || together[subGain][gain.smallG] == 1;
    return isSet ? EGainKey::Optional : EGainKey::IfUsed;
}

// The sub-gains of one gain on one path.
void AppendGainByGain(const SMMRfRxGainInfoV7 &gains, const SGain &gain, int srxPath,
                      EPowerMode mode, std::vector<SGainKey> &keys)
{
    for (int subGain = 0; subGain < kVondSubGains; ++subGain)
        keys.push_back(
            {FormText(kGainByGainForm, {Text(srxPath), ModeName(mode), Text(gain.bigG),
                                        Text(gain.smallG), Text(subGain)}),
             mode,
             {VondGainByGainPair(EVondRxPath::Main, srxPath, gain.bigG, gain.smallG, subGain),
              VondGainByGainPair(EVondRxPath::Div, srxPath, gain.bigG, gain.smallG, subGain)},
             GainByGainUse(gains, gain, subGain)});
}

}  // namespace

bool AppendType1Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys)
{
    std::vector<SGain> modes;
    if (!SlotsOf(gains, modes))
        return false;
    int slot = 0;
    for (const SGain &gain : modes) {
        keys.push_back({FormText(kType1Form, {ModeName(mode), Text(gain.bigG), Text(gain.smallG)}),
                        mode,
                        {VondType1LossPair(EVondRxPath::Main, slot),
                         VondType1LossPair(EVondRxPath::Div, slot)},
                        EGainKey::Required});
        ++slot;
    }
    return true;
}

bool AppendType2Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys)
{
    std::vector<SGain> modes;
    if (!SlotsOf(gains, modes))
        return false;
    for (int srxPath = 0; srxPath < kVondSrxPaths; ++srxPath) {
        AppendPartialOn(modes, srxPath, mode, keys);
        for (int bigG = 0; bigG < kVondGainRows; ++bigG) {
            for (int smallG = 0; smallG < kVondGainColumns; ++smallG)
                AppendGainByGain(gains, {bigG, smallG}, srxPath, mode, keys);
        }
    }
    return true;
}
