#include "Simulator/flash/FlashCalibration.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "Simulator/flash/FlashFill.h"
#include "Simulator/flash/GainSlots.h"
#include "Simulator/flash/PowerAmplifier.h"
#include "Simulator/flash/Subbands.h"

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

constexpr int kRxNormalTemperature = 3;  // index of the path loss records' offsets

// The slot of a gain mode, or of the one nearest to it; -1 where the gain tables allow none.
int SlotOf(const SMMRfRxGainInfoV7 &gain, const SRxPlace &place)
{
    const double wanted = RfGainOf(place.mode.elna, place.mode.mode, place.isLowPower);
    int nearest = -1;
    double distance = 1e9;
    int slot = 0;
    for (const auto &[bigG, smallG] : GainSlots(gain)) {
        const double off =
            std::fabs(wanted - RfGainOf(static_cast<uint8_t>(bigG), static_cast<uint8_t>(smallG),
                                        place.isLowPower));
        if (off < distance) {
            distance = off;
            nearest = slot;
        }
        ++slot;
    }
    return nearest;
}

EVondRxPath RxPathOf(int antenna)
{
    return antenna % 2 == 0 ? EVondRxPath::Main : EVondRxPath::Div;
}

// The pair of the loss table that counts; -1: none.
int PairOf(const SMMRfRxGainInfoV7 &gain, const SRxPlace &place, const SType1Block *)
{
    const int slot = SlotOf(gain, place);
    return slot < 0 ? slot : VondType1LossPair(RxPathOf(place.antenna), slot);
}

int PairOf(const SMMRfRxGainInfoV7 &gain, const SRxPlace &place, const SType2Block *)
{
    const EVondRxPath path = RxPathOf(place.antenna);
    const int srx = place.antenna / 2;
    if (place.otherMode)
        return VondGainByGainPair(path, srx, place.mode.elna, place.mode.mode, *place.otherMode);
    const int slot = SlotOf(gain, place);
    return slot < 0 ? slot : VondPartialOnPair(path, srx, slot);
}

template <class Block>
double LossAt(const std::vector<Block> &blocks, uint32_t kHz, int pair, bool isLowPower)
{
    return AtFrequency(blocks, kHz, [&](const Block &block, int i) {
        const SMMLossPair &loss = block.loss[i][pair];
        return (isLowPower ? loss.lpm : loss.hpm) / 32.0;
    });
}

// The record's key: the bandwidth's region of the route, or its last one.
SCalKey AptKey(const SProfile &profile, const STxPlace &place)
{
    const SProfileTxRoute *route = FindRoute(profile.txRoutes, place.route, place.band);
    SCalKey key = {place.route, 0};
    if (route == nullptr)
        return key;
    for (const SProfileBwRegion &region : route->regions) {
        key.bandwidth = region.kHz;
        if (region.kHz >= place.bandwidth)
            break;
    }
    return key;
}

}  // namespace

template <class Block>
double CFlashCalibration::LossError(const SRxPlace &place)
{
    const SCalKey key = {place.route, 0};
    const auto &truth = m_flash.Truth(m_profile).Table<Block>();
    const auto found = truth.find(key);
    if (found == truth.end())
        return 0.0;
    const std::vector<Block> &held = m_flash.Image(m_profile).Table<Block>().at(key);
    const Block *const kind = nullptr;
    const int pair = PairOf(m_profile.gain[place.isLowPower ? 1 : 0], place, kind);
    double error = 0.0;
    if (pair >= 0)
        error = LossAt(held, place.kHz, pair, place.isLowPower) -
                LossAt(found->second, place.kHz, pair, place.isLowPower);
    if (!held.empty())
        error +=
            AtTemperature(held[0].plOffset, kRxNormalTemperature, m_profile.radio.temperatureC);
    return error;
}

double CFlashCalibration::RxError(const SRxPlace &place)
{
    return place.isType2 ? LossError<SType2Block>(place) : LossError<SType1Block>(place);
}

STxOutput CFlashCalibration::Output(const STxPlace &place, double power)
{
    const SCalKey key = AptKey(m_profile, place);
    const auto &truth = m_flash.Truth(m_profile).Table<SAptBlock>();
    const auto found = truth.find(key);
    if (found == truth.end() || found->second.empty())
        return {.power = power};
    const std::vector<SAptBlock> &held = m_flash.Image(m_profile).Table<SAptBlock>().at(key);
    const std::vector<SAptBlock> none = {UncalibratedApt()};
    const CPowerAmplifier amplifier(found->second, held.empty() ? none : held);
    return amplifier.Output(place.kHz, power, m_profile.radio.temperatureC);
}
