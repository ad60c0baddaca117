#include "Simulator/flash/CalPlaces.h"

#include <algorithm>

#include "Simulator/radio/Checks.h"

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

std::vector<SCalPlace> RxPlaces(const SProfile &profile, const std::vector<SProfileRxRoute> &routes)
{
    std::vector<SCalPlace> places;
    for (const SProfileRxRoute &row : routes) {
        const SFreqLimits limits = DownlinkLimits(profile, {row.band, 0, true, row.route});
        places.push_back({{row.route, 0}, row.band, 0, limits});
    }
    return places;
}

std::string NameOf(const SCalKey &key)
{
    const std::string name = "route " + std::to_string(key.route);
    return key.bandwidth == 0 ? name : name + ", " + std::to_string(key.bandwidth) + " kHz";
}

bool KnowsRoute(const std::vector<SCalPlace> &places, uint16_t route)
{
    return std::any_of(places.begin(), places.end(),
                       [&](const SCalPlace &place) { return place.key.route == route; });
}

// What a key and a block count must fulfil; places are those of the key's kind.
std::string CheckKey(const std::vector<SCalPlace> &places, const SCalKey &key, int count, int most)
{
    if (!KnowsRoute(places, key.route))
        return NameOf({key.route, 0}) + ": unknown route";
    if (std::none_of(places.begin(), places.end(),
                     [&](const SCalPlace &place) { return place.key == key; }))
        return NameOf(key) + ": unknown bandwidth";
    if (count > most)
        return NameOf(key) + ": " + std::to_string(count) + " blocks, at most " +
               std::to_string(most);
    return {};
}

}  // namespace

template <>
std::vector<SCalPlace> CalPlaces<SType1Block>(const SProfile &profile)
{
    return RxPlaces(profile, profile.rxType1Routes);
}

template <>
std::vector<SCalPlace> CalPlaces<SType2Block>(const SProfile &profile)
{
    return RxPlaces(profile, profile.rxType2Routes);
}

template <>
std::vector<SCalPlace> CalPlaces<SAptBlock>(const SProfile &profile)
{
    std::vector<SCalPlace> places;
    for (const SProfileTxRoute &row : profile.txRoutes) {
        const SFreqLimits limits = UplinkLimits(profile, {row.band, 0, true, row.route});
        int region = 0;
        for (const SProfileBwRegion &bandwidth : row.regions)
            places.push_back({{row.route, bandwidth.kHz}, row.band, region++, limits});
    }
    return places;
}

template <class Block>
std::string CheckCalKey(const SProfile &profile, const SCalKey &key, int count)
{
    return CheckKey(CalPlaces<Block>(profile), key, count, SCalKind<Block>::kBlocksOfRecord);
}

template <class Block>
std::string CheckCalRecord(const SProfile &profile, const SCalKey &key, const Block *blocks,
                           int count)
{
    const std::vector<SCalPlace> places = CalPlaces<Block>(profile);
    std::string reason = CheckKey(places, key, count, SCalKind<Block>::kBlocksOfRecord);
    if (!reason.empty())
        return reason;
    for (int i = 0; i < count; ++i) {
        const auto place = std::find_if(places.begin(), places.end(), [&](const SCalPlace &row) {
            return row.key == key && row.band == blocks[i].band;
        });
        if (place == places.end())
            return NameOf(key) + ": not on band " + std::to_string(blocks[i].band);
        if (blocks[i].band != blocks[0].band)
            return NameOf(key) + ": blocks of several bands";
        for (const uint32_t kHz : blocks[i].freq) {
            if (kHz != 0 && !place->limits.Holds(kHz))
                return NameOf({key.route, 0}) + ": " + std::to_string(kHz) +
                       " kHz is out of limits";
        }
    }
    return {};
}

template std::string CheckCalKey<SType1Block>(const SProfile &, const SCalKey &, int);
template std::string CheckCalKey<SType2Block>(const SProfile &, const SCalKey &, int);
template std::string CheckCalKey<SAptBlock>(const SProfile &, const SCalKey &, int);
template std::string CheckCalRecord(const SProfile &, const SCalKey &, const SType1Block *, int);
template std::string CheckCalRecord(const SProfile &, const SCalKey &, const SType2Block *, int);
template std::string CheckCalRecord(const SProfile &, const SCalKey &, const SAptBlock *, int);
