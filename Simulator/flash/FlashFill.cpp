#include "Simulator/flash/FlashFill.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Simulator/flash/GainSlots.h"
#include "Simulator/radio/Noise.h"

namespace {

// Limits in kHz for each subband, where the profile gives no number.
constexpr uint32_t kSubbandKhz = 5000;
constexpr uint8_t kNormalTemperature = 3;

// A PA control level; unused ones have no mode and the lowest voltage.
struct SLevel
{
    uint8_t mode;
    uint8_t decivolts;
    uint8_t usage256Qam;
    int16_t prfDb;
    double gainDb;
};

constexpr int kLevelsInUse = 8;
constexpr SLevel kLevels[kVondAptLevels] = {
    {0, 34, 1, 26, 28.0}, {0, 30, 1, 24, 27.5}, {0, 26, 1, 21, 27.0}, {1, 22, 1, 18, 18.0},
    {1, 18, 0, 15, 17.5}, {1, 14, 0, 11, 17.0}, {2, 10, 0, 7, 6.0},   {2, 7, 0, 2, 5.5},
    {0, 5, 0, 0, 0.0},    {0, 5, 0, 0, 0.0},
};

// By PA mode, dB.
constexpr double kPaGainDb[kVondAptPaModes] = {28.0, 18.0, 6.0};
constexpr double kDetectorDb[kVondAptPaModes] = {12.0, 4.5, -6.0};
constexpr double kCouplerLossDb[kVondAptPaModes] = {25.0, 25.25, 25.75};

constexpr double kPaGainTiltDb = 2.5;  // what the PA loses from the lower limit to the upper
constexpr double kPathLossTiltDb = 1.5;

int16_t Steps(double db)
{
    return static_cast<int16_t>(std::lround(db * 32.0));
}

// The places of a record's subbands: in the middle of equal parts, on the NR-ARFCN raster.
std::vector<uint32_t> Frequencies(const SFreqLimits &limits, int count)
{
    std::vector<uint32_t> frequencies;
    for (int i = 0; i < count; ++i) {
        const uint64_t width = limits.high - limits.low;
        const uint64_t step = width * (2 * static_cast<uint64_t>(i) + 1) / (2u * uint64_t(count));
        const uint32_t exact = limits.low + static_cast<uint32_t>(step);
        uint32_t onRaster = exact;
        while (onRaster > limits.low && !IsOnRaster(onRaster))
            --onRaster;
        frequencies.push_back(IsOnRaster(onRaster) ? onRaster : exact);
    }
    return frequencies;
}

template <class Block>
int SubbandCount(const SProfile &profile, const SCalPlace &place)
{
    const int most = SCalKind<Block>::kBlocksOfRecord * kVondCalBlockSubbands;
    const SProfileSubbands &rule = profile.calibration.*SCalKind<Block>::kRule;
    const auto found = rule.byBand.find(place.band);
    if (found != rule.byBand.end())
        return found->second;
    if (rule.fallback)
        return *rule.fallback;
    const uint32_t parts = (place.limits.high - place.limits.low) / kSubbandKhz;
    return static_cast<int>(std::clamp(parts, 1u, static_cast<uint32_t>(most)));
}

// The source of chance of one record. Other records do not change it.
template <class Block>
CNoise NoiseOf(const SProfile &profile, const SCalPlace &place)
{
    const uint64_t name = (uint64_t(SCalKind<Block>::kId) << 48) ^
                          (uint64_t(place.key.bandwidth) << 16) ^ place.key.route;
    return CNoise(name * 0x2545f4914f6cdd1du + profile.calibration.seed);
}

// Position of a subband in its record: 0 is the first one, 1 the last.
double Position(std::size_t subband, std::size_t count)
{
    return count > 1 ? double(subband) / double(count - 1) : 0.0;
}

// Makes blocks that hold frequencies alone, then calls write(block, subband of the block, position)
// for each subband.
template <class Block, class Write>
std::vector<Block> Blocks(const std::vector<uint32_t> &frequencies, const Block &head,
                          const Write &write)
{
    const std::size_t size = kVondCalBlockSubbands;
    std::vector<Block> blocks((frequencies.size() + size - 1) / size, head);
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        blocks[i / size].freq[i % size] = frequencies[i];
        write(blocks[i / size], i % size, Position(i, frequencies.size()));
    }
    return blocks;
}

// Gains that are so much off the usual ones; no subband.
SAptBlock AptHead(double own)
{
    SAptBlock head = {};
    head.normalTempIndex = kNormalTemperature;
    head.paControlLevel = kLevelsInUse;
    head.paModeCount = kVondAptPaModes;
    for (int i = 0; i < kVondAptLevels; ++i) {
        const SLevel &level = kLevels[i];
        const double gain = i < kLevelsInUse ? level.gainDb + own : 0.0;
        head.level[i] = {level.mode, level.decivolts,    level.usage256Qam,
                         0,          Steps(level.prfDb), Steps(gain)};
    }
    for (int mode = 0; mode < kVondAptPaModes; ++mode) {
        SAptPaPart &part = head.pa[mode];
        head.couplerLoss[mode] = Steps(kCouplerLossDb[mode]);
        part.prfIndex = static_cast<uint8_t>(mode);
        for (int t = 0; t < kVondCalTemperatures; ++t) {
            part.paGainTempOffset[t] = Steps((kNormalTemperature - t) * (0.35 + 0.05 * mode));
            part.powerDetectorTempOffset[t] = Steps((t - kNormalTemperature) * 0.125);
        }
    }
    return head;
}

std::vector<SAptBlock> Record(const SProfile &profile, const SCalPlace &place,
                              const std::vector<uint32_t> &frequencies, const SAptBlock *)
{
    CNoise noise = NoiseOf<SAptBlock>(profile, place);
    const double own = noise.Bell() - 0.25 * place.region;
    SAptBlock head = AptHead(own);
    head.band = place.band;
    for (int mode = 0; mode < kVondAptPaModes; ++mode)
        head.couplerLoss[mode] = Steps(kCouplerLossDb[mode] + 0.2 * noise.Bell());
    return Blocks(frequencies, head, [&](SAptBlock &block, std::size_t i, double position) {
        for (int mode = 0; mode < kVondAptPaModes; ++mode) {
            block.pa[mode].paGain[i] = Steps(kPaGainDb[mode] + own - kPaGainTiltDb * position);
            block.pa[mode].powerDetector[i] =
                Steps(kDetectorDb[mode] + 0.5 * position + 0.1 * noise.Bell());
        }
    });
}

// The losses of a route at its lowest subband: one value for each pair and power mode that the gain
// tables allow. The others stay 0: the receiver never uses them.
struct SLoss
{
    int pair;
    int16_t SMMLossPair::*mode;
    double db;
};

struct SPowerMode
{
    int16_t SMMLossPair::*half;
    double extraDb;
};

// In the order of the profile's gain tables.
constexpr SPowerMode kPowerModes[kVondRxPowerModes] = {{&SMMLossPair::hpm, 0.0},
                                                       {&SMMLossPair::lpm, 0.3}};
constexpr EVondRxPath kRxPaths[] = {EVondRxPath::Main, EVondRxPath::Div};

double LossDb(CNoise &noise, const SPowerMode &mode, EVondRxPath path, int slot, int srxPath)
{
    return 1.0 + mode.extraDb + 0.4 * static_cast<int>(path) + 0.2 * slot + 0.35 * srxPath +
           0.25 * noise.Bell();
}

// The losses in one power mode of a type 1 route: those of the slots.
void AddLosses(const SMMRfRxGainInfoV7 &gain, const SPowerMode &mode, CNoise &noise,
               std::vector<SLoss> &losses, const SMMType1PathlossBlockV7 *)
{
    const int slots = static_cast<int>(GainSlots(gain).size());
    for (const EVondRxPath path : kRxPaths) {
        for (int slot = 0; slot < slots; ++slot)
            losses.push_back(
                {VondType1LossPair(path, slot), mode.half, LossDb(noise, mode, path, slot, 0)});
    }
}

// The losses of a type 2 route on one SRX path: those of the slots, and for each slot's gain one
// for each gain of the other SRX path that can run together with it.
void AddLossesOf(int srx, EVondRxPath path, const SMMRfRxGainInfoV7 &gain, const SPowerMode &mode,
                 CNoise &noise, std::vector<SLoss> &losses)
{
    int slot = 0;
    for (const auto &[bigG, smallG] : GainSlots(gain)) {
        losses.push_back(
            {VondPartialOnPair(path, srx, slot), mode.half, LossDb(noise, mode, path, slot, srx)});
        for (int sub = 0; sub < kVondSubGains; ++sub) {
            const uint8_t together =
                srx == 0 ? gain.t2[bigG][smallG][sub] : gain.t2[bigG][sub][smallG];
            if (together == 1)
                losses.push_back({VondGainByGainPair(path, srx, bigG, smallG, sub), mode.half,
                                  0.5 + LossDb(noise, mode, path, slot, srx)});
        }
        ++slot;
    }
}

void AddLosses(const SMMRfRxGainInfoV7 &gain, const SPowerMode &mode, CNoise &noise,
               std::vector<SLoss> &losses, const SMMType2PathlossBlockV7 *)
{
    for (const EVondRxPath path : kRxPaths) {
        for (int srx = 0; srx < kVondSrxPaths; ++srx)
            AddLossesOf(srx, path, gain, mode, noise, losses);
    }
}

template <class Block>
std::vector<Block> Record(const SProfile &profile, const SCalPlace &place,
                          const std::vector<uint32_t> &frequencies, const Block *kind)
{
    CNoise noise = NoiseOf<Block>(profile, place);
    std::vector<SLoss> losses;
    for (int mode = 0; mode < kVondRxPowerModes; ++mode)
        AddLosses(profile.gain[mode], kPowerModes[mode], noise, losses, kind);
    Block head = {};
    head.band = place.band;
    for (int t = 0; t < kVondCalTemperatures; ++t)
        head.plOffset[t] = Steps((t - kNormalTemperature) * 0.125);
    return Blocks(frequencies, head, [&](Block &block, std::size_t i, double position) {
        for (const SLoss &loss : losses)
            block.loss[i][loss.pair].*loss.mode = Steps(loss.db + kPathLossTiltDb * position);
    });
}

// A route that stands on several bands is calibrated on the first.
template <class Block>
void FillTable(const SProfile &profile, FlashTable<Block> &table)
{
    for (const SCalPlace &place : CalPlaces<Block>(profile)) {
        if (table.count(place.key) != 0)
            continue;
        const std::vector<uint32_t> frequencies =
            Frequencies(place.limits, SubbandCount<Block>(profile, place));
        const Block *const kind = nullptr;
        table[place.key] = Record(profile, place, frequencies, kind);
    }
}

// Without a rule that leaves records empty.
SProfileSubbands FullRule(SProfileSubbands rule)
{
    if (rule.fallback == 0)
        rule.fallback.reset();
    for (auto row = rule.byBand.begin(); row != rule.byBand.end();)
        row = row->second == 0 ? rule.byBand.erase(row) : std::next(row);
    return rule;
}

}  // namespace

SFlashImage CalibratedFlash(const SProfile &profile)
{
    SFlashImage image;
    std::apply([&](auto &...table) { (FillTable(profile, table), ...); }, image.tables);
    return image;
}

bool IsFullyCalibrated(const SProfile &profile)
{
    const SProfileCalibration &calibration = profile.calibration;
    for (const SProfileSubbands *rule :
         {&calibration.tx, &calibration.rxType1, &calibration.rxType2}) {
        if (rule->fallback == 0 || std::any_of(rule->byBand.begin(), rule->byBand.end(),
                                               [](const auto &row) { return row.second == 0; }))
            return false;
    }
    return true;
}

SFlashImage TrueFlash(const SProfile &profile)
{
    SProfile full = profile;
    full.calibration.tx = FullRule(profile.calibration.tx);
    full.calibration.rxType1 = FullRule(profile.calibration.rxType1);
    full.calibration.rxType2 = FullRule(profile.calibration.rxType2);
    return CalibratedFlash(full);
}

SAptBlock UncalibratedApt()
{
    SAptBlock block = AptHead(0.0);
    block.freq[0] = 1;
    for (int mode = 0; mode < kVondAptPaModes; ++mode) {
        block.pa[mode].paGain[0] = Steps(kPaGainDb[mode]);
        block.pa[mode].powerDetector[0] = Steps(kDetectorDb[mode]);
    }
    return block;
}
