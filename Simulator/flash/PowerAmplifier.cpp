#include "Simulator/flash/PowerAmplifier.h"

#include <algorithm>
#include <cmath>

#include "Simulator/flash/Subbands.h"
#include "Simulator/radio/Limiter.h"

namespace {

constexpr double kFullSupply = 3.4;       // V
constexpr double kFullSaturation = 28.5;  // dBm at the connector with the full supply
constexpr double kLeastSupply = 0.1;      // V, below which the PA has no output to speak of
constexpr double kPaKnee = 8.0;           // a linearised PA bends sharply

int ModeOf(const SAptLevel &level)
{
    return std::min<int>(level.paMode, kVondAptPaModes - 1);
}

double SupplyOf(const SAptLevel &level)
{
    return std::max(level.dc2dcLevel / 10.0, kLeastSupply);
}

int LevelsInUse(const SAptBlock &block)
{
    return std::clamp<int>(block.paControlLevel, 1, kVondAptLevels);
}

// The level of the least reference power that is enough, or else the one of the greatest.
const SAptLevel &LevelFor(const SAptBlock &block, double power)
{
    const SAptLevel *enough = nullptr;
    const SAptLevel *greatest = &block.level[0];
    for (int i = 0; i < LevelsInUse(block); ++i) {
        const SAptLevel &level = block.level[i];
        if (level.prf > greatest->prf)
            greatest = &level;
        if (level.prf / 32.0 >= power && (enough == nullptr || level.prf < enough->prf))
            enough = &level;
    }
    return enough != nullptr ? *enough : *greatest;
}

// The PA's gain in a mode at a supply: linear between the levels that were calibrated so, flat
// outside of them.
double GainAt(const SAptBlock &truth, int mode, double supply)
{
    const SAptLevel *below = nullptr;
    const SAptLevel *above = nullptr;
    for (int i = 0; i < LevelsInUse(truth); ++i) {
        const SAptLevel &level = truth.level[i];
        if (ModeOf(level) != mode)
            continue;
        const double at = SupplyOf(level);
        if (at <= supply && (below == nullptr || at > SupplyOf(*below)))
            below = &level;
        if (at >= supply && (above == nullptr || at < SupplyOf(*above)))
            above = &level;
    }
    if (below == nullptr || above == nullptr || SupplyOf(*below) == SupplyOf(*above)) {
        const SAptLevel *const only = below != nullptr ? below : above;
        return only != nullptr ? only->paGain / 32.0 : 0.0;
    }
    const double share = (supply - SupplyOf(*below)) / (SupplyOf(*above) - SupplyOf(*below));
    return (below->paGain + share * (above->paGain - below->paGain)) / 32.0;
}

double ModeGain(const std::vector<SAptBlock> &blocks, int mode, uint32_t kHz)
{
    return AtFrequency(blocks, kHz, [&](const SAptBlock &block, int i) {
        return block.pa[mode].paGain[i] / 32.0;
    });
}

double Detector(const std::vector<SAptBlock> &blocks, int mode, uint32_t kHz)
{
    return AtFrequency(blocks, kHz, [&](const SAptBlock &block, int i) {
        return block.pa[mode].powerDetector[i] / 32.0;
    });
}

}  // namespace

STxOutput CPowerAmplifier::Output(uint32_t kHz, double power, double celsius) const
{
    const SAptBlock &held = m_held[0];
    const SAptBlock &truth = m_truth[0];
    const SAptLevel &level = LevelFor(held, power);
    const int mode = ModeOf(level);
    const double supply = SupplyOf(level);
    const double heldGain = level.paGain / 32.0 + ModeGain(m_held, mode, kHz);
    const double trueGain = GainAt(truth, mode, supply) + ModeGain(m_truth, mode, kHz);
    const SAptPaPart &part = held.pa[mode];
    const double straight = power - heldGain + trueGain +
                            AtTemperature(part.paGainTempOffset, held.normalTempIndex, celsius);
    const double saturation = kFullSaturation + 20.0 * std::log10(supply / kFullSupply);
    STxOutput output;
    output.power = Limited(straight, saturation, kPaKnee);
    output.detectorError =
        (held.couplerLoss[mode] - truth.couplerLoss[mode]) / 32.0 -
        (Detector(m_held, mode, kHz) - Detector(m_truth, mode, kHz)) +
        AtTemperature(part.powerDetectorTempOffset, held.normalTempIndex, celsius);
    return output;
}
