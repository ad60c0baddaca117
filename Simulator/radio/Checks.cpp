#include "Simulator/radio/Checks.h"

namespace {

// Limits of the radio itself, which no profile changes.
constexpr int16_t kLowestTxPower = -60 * 256;
constexpr int16_t kHighestTxPower = 30 * 256;
constexpr int16_t kHighestRfGain = 70 * 32;
constexpr int16_t kLowestDigitalGain = -42 * 32;
constexpr int16_t kHighestDigitalGain = 54 * 32;
constexpr uint8_t kHighestGainIndex = 17;
constexpr uint32_t kHighestMcs = 8;

// The limits of the route when it has some of its own, otherwise those of the band.
SFreqLimits LimitsOf(const std::vector<SProfileRouteLimits> &rows, const SCarrierPlace &place,
                     const SFreqLimits &band)
{
    if (place.withRoute) {
        if (const SProfileRouteLimits *row = FindRoute(rows, place.route, place.band))
            return row->limits;
    }
    return band;
}

SVerdict CheckFrequency(const SProfile &profile, const SCarrierPlace &place,
                        const SFreqLimits &limits)
{
    if (!limits.Holds(place.kHz))
        return place.hasStatus ? SVerdict(EStatus::FreqMismatch) : SVerdict(EResult::Frequency);
    if (place.hasStatus && profile.rasterCheck && !IsOnRaster(place.kHz))
        return EStatus::FreqMismatch;
    return {};
}

bool Knows(const SProfile &profile, uint16_t rxRoute)
{
    return FindRoute(profile.rxType1Routes, rxRoute) || FindRoute(profile.rxType2Routes, rxRoute);
}

}  // namespace

SVerdict CheckUplink(const SProfile &profile, const SCarrierPlace &place)
{
    const SProfileBand *band = FindBand(profile, place.band);
    if (band == nullptr)
        return EResult::UnknownBand;
    if (!band->uplink.Exists())
        return EResult::RouteDirection;
    if (place.withRoute) {
        if (FindRoute(profile.txRoutes, place.route) == nullptr)
            return EResult::UnknownRoute;
        if (FindRoute(profile.txRoutes, place.route, place.band) == nullptr)
            return EResult::RouteNotOnBand;
    }
    return CheckFrequency(profile, place, UplinkLimits(profile, place));
}

SVerdict CheckDownlink(const SProfile &profile, const SCarrierPlace &place)
{
    const SProfileBand *band = FindBand(profile, place.band);
    if (band == nullptr)
        return EResult::UnknownBand;
    if (!band->downlink.Exists())
        return EResult::RouteDirection;
    if (place.withRoute) {
        if (!Knows(profile, place.route))
            return EResult::UnknownRoute;
        if (!FindRoute(profile.rxType1Routes, place.route, place.band) &&
            !FindRoute(profile.rxType2Routes, place.route, place.band))
            return EResult::RouteNotOnBand;
    }
    return CheckFrequency(profile, place, DownlinkLimits(profile, place));
}

SFreqLimits UplinkLimits(const SProfile &profile, const SCarrierPlace &place)
{
    return LimitsOf(profile.txLimits, place, FindBand(profile, place.band)->uplink);
}

SFreqLimits DownlinkLimits(const SProfile &profile, const SCarrierPlace &place)
{
    return LimitsOf(profile.rxLimits, place, FindBand(profile, place.band)->downlink);
}

SVerdict ChooseRxRoute(const SProfile &profile, uint16_t band, uint16_t route, uint32_t routeKind,
                       SRxRouteChoice &choice)
{
    if (!Knows(profile, route))
        return EResult::UnknownRoute;
    const SProfileRxRoute *type1 = FindRoute(profile.rxType1Routes, route, band);
    const SProfileRxRoute *type2 = FindRoute(profile.rxType2Routes, route, band);
    if (type1 == nullptr && type2 == nullptr)
        return EResult::RouteNotOnBand;
    const bool gainMode = type2 != nullptr && type2->gainMode != 0;
    if (routeKind == 3 && gainMode) {
        choice = {type2, true};
    } else if (routeKind == 1 && type1 != nullptr) {
        choice = {type1, false};
    } else if (routeKind == 1 && !gainMode) {
        choice = {type2, true};
    } else {
        return EResult::RouteKind;
    }
    return {};
}

SVerdict CheckPath(const SRxRouteChoice &choice, uint8_t singlePath, uint32_t path)
{
    if (singlePath > 1)
        return EResult::Flag;
    const bool good =
        singlePath == 1 ? path == 0 || (path == 1 && choice.type2) : path == 3 && choice.type2;
    return good ? SVerdict() : SVerdict(EResult::Path);
}

SVerdict CheckChannel(uint32_t scs, uint32_t bandwidth)
{
    if (scs > 2)
        return EResult::Scs;
    return ResourceBlocks(scs, bandwidth) == 0 ? SVerdict(EResult::Bandwidth) : SVerdict();
}

SVerdict CheckAllocation(const SAllocation &allocation)
{
    if (const SVerdict verdict = CheckChannel(allocation.scs, allocation.bandwidth); !verdict.Ok())
        return verdict;
    const uint32_t blocks = ResourceBlocks(allocation.scs, allocation.bandwidth);
    const uint32_t end = uint32_t(allocation.vrbStart) + allocation.vrbLength;
    if (allocation.vrbLength == 0 || end > blocks)
        return EResult::ResourceBlocks;
    if (allocation.mcsMode > kHighestMcs)
        return EResult::Modulation;
    return CheckTxPower(allocation.txPower);
}

SVerdict CheckTxPower(int16_t power)
{
    const bool good = power >= kLowestTxPower && power <= kHighestTxPower;
    return good ? SVerdict() : SVerdict(EResult::TxPower);
}

SVerdict CheckRfGain(int16_t gain)
{
    return gain >= 0 && gain <= kHighestRfGain ? SVerdict() : SVerdict(EResult::Gain);
}

SVerdict CheckDigitalGain(int16_t gain)
{
    const bool good = gain >= kLowestDigitalGain && gain <= kHighestDigitalGain;
    return good ? SVerdict() : SVerdict(EResult::Gain);
}

SVerdict CheckGainIndex(uint8_t index)
{
    return index <= kHighestGainIndex ? SVerdict() : SVerdict(EResult::Gain);
}
