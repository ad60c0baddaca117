#include "Simulator/radio/CapabilityAnswers.h"

#include <algorithm>

namespace {

uint32_t ItemWord(bool valid, uint32_t value)
{
    return valid ? (value << 2) | 1u : 0u;
}

void FillText(char (&field)[16], const std::string &text)
{
    text.copy(field, sizeof(field) - 1);
}

void FillPairs(const std::vector<uint16_t> &pairs, uint8_t &count, uint16_t *row)
{
    count = static_cast<uint8_t>(pairs.size());
    std::copy(pairs.begin(), pairs.end(), row);
}

SRxRouteHw RxHardware(const SProfileHardware &hardware, bool type2)
{
    SRxRouteHw block = {};
    block.antMask = hardware.antMask;
    block.feRouteNum = hardware.feRoute;
    FillText(block.port[0], hardware.port[0]);
    FillText(block.port[1], hardware.port[1]);
    if (type2) {
        block.type2.srx[0] = hardware.path[0];
        block.type2.srx[1] = hardware.path[1];
        FillPairs(hardware.mimoPairs, block.type2.mimoPairCount, block.type2.mimoPair);
    } else {
        block.type1.srx = hardware.path[0];
        FillPairs(hardware.mimoPairs, block.type1.mimoPairCount, block.type1.mimoPair);
    }
    return block;
}

STxBwRegionHw TxHardware(const SProfileHardware &hardware)
{
    STxBwRegionHw block = {};
    block.antMask = hardware.antMask;
    block.feRouteNum = hardware.feRoute;
    FillText(block.port, hardware.port[0]);
    block.stx = hardware.path[0];
    FillPairs(hardware.mimoPairs, block.mimoPairCount, block.mimoPair);
    return block;
}

void FillLimits(const std::vector<SProfileRouteLimits> &rows, SRouteFreqRangeHalf &half)
{
    half.count = static_cast<uint16_t>(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        half.band[i] = rows[i].band;
        half.route[i] = rows[i].route;
        half.low[i] = static_cast<int32_t>(rows[i].limits.low);
        half.high[i] = static_cast<int32_t>(rows[i].limits.high);
    }
}

void FillRoutes(const SProfile &profile, SMMRfRouteTableV7 &table)
{
    table.txRouteCount = static_cast<uint16_t>(profile.txRoutes.size());
    for (std::size_t i = 0; i < profile.txRoutes.size(); ++i) {
        const SProfileTxRoute &row = profile.txRoutes[i];
        SMMRfTxRouteV7 &entry = table.txRoute[i];
        entry.band = row.band;
        entry.route = row.route;
        entry.bwRegionCount = static_cast<uint16_t>(row.regions.size());
        for (std::size_t region = 0; region < row.regions.size(); ++region)
            entry.bwRegionKhz[region] = row.regions[region].kHz;
    }
    table.rxType1RouteCount = static_cast<uint16_t>(profile.rxType1Routes.size());
    for (std::size_t i = 0; i < profile.rxType1Routes.size(); ++i)
        table.rxType1Route[i] = {profile.rxType1Routes[i].band, profile.rxType1Routes[i].route};
    table.rxType2RouteCount = static_cast<uint16_t>(profile.rxType2Routes.size());
    for (std::size_t i = 0; i < profile.rxType2Routes.size(); ++i) {
        const SProfileRxRoute &row = profile.rxType2Routes[i];
        SMMRfRxType2RouteV7 &entry = table.rxType2Route[i];
        entry.band = row.band;
        entry.route = row.route;
        entry.gainModeFlag = row.gainMode;
    }
}

const SProfileBwRegion *FindRegion(const SProfile &profile, const SMMRfRouteDetailTxPair &pair)
{
    for (const SProfileTxRoute &row : profile.txRoutes) {
        if (row.route != pair.route)
            continue;
        for (const SProfileBwRegion &region : row.regions) {
            if (region.kHz == pair.bwRegionKhz)
                return &region;
        }
    }
    return nullptr;
}

}  // namespace

SVerdict CheckCapabilitySizes(const SVondCapabilityReq &request, uint32_t capability,
                              uint32_t calibration)
{
    const bool good =
        request.capabilitySize == capability && request.calibrationSize == calibration;
    return good ? SVerdict() : SVerdict(EResult::RecordSize);
}

void AnswerLteCapability(const SProfile &profile, SERfCapability &answer)
{
    answer = {};
    answer.rfChipId = profile.lteChip.id;
}

void AnswerMultiModeCapability(const SProfile &profile, SMMRfCapability &answer)
{
    answer = {};
    answer.worldMode = ItemWord(profile.ratValid, profile.worldMode);
}

void AnswerNrCapability(const SProfile &profile, SNRfCapability &answer)
{
    answer = {};
    answer.rfChipId = profile.nrChip.id;
    answer.generation = ItemWord(true, profile.generation);
}

SVerdict AnswerRouteConfig(const SProfile &profile, uint32_t radioKind, SMMRfRouteConfigV7 &answer)
{
    answer = {};
    if (radioKind > 1)
        return EResult::RadioKind;
    if (radioKind == 0)
        return {};
    answer.bandCount = static_cast<uint32_t>(profile.bands.size());
    for (std::size_t i = 0; i < profile.bands.size(); ++i) {
        const SProfileBand &band = profile.bands[i];
        answer.band[i] = {band.band, band.downlinkOnly, band.uplinkOnly};
    }
    FillLimits(profile.txLimits, answer.freqRange.tx);
    FillLimits(profile.rxLimits, answer.freqRange.rx);
    FillRoutes(profile, answer.routes);
    std::copy(std::begin(profile.gain), std::end(profile.gain), answer.rxGainInfo);
    return {};
}

void AnswerBandRxInfo(const SProfile &profile, SNRfBandRxInfo &answer)
{
    answer = {};
    answer.count = static_cast<uint16_t>(profile.bands.size());
    for (std::size_t i = 0; i < profile.bands.size(); ++i) {
        answer.band[i] = profile.bands[i].band;
        answer.ulMimo[i] = profile.bands[i].ulMimo;
        answer.rx4x4[i] = profile.bands[i].rx4x4;
    }
}

void AnswerRxRouteValues(const SProfile &profile, SNRfRxRouteValues &answer)
{
    answer = {};
    for (const auto *routes : {&profile.rxType1Routes, &profile.rxType2Routes}) {
        for (const SProfileRxRoute &row : *routes) {
            if (row.txRoutes.empty())
                continue;
            SNRfRxRouteValueEntry &entry = answer.entry[answer.count++];
            entry.route = row.route;
            entry.valueCount = static_cast<uint16_t>(row.txRoutes.size());
            std::copy(row.txRoutes.begin(), row.txRoutes.end(), entry.value);
        }
    }
}

SVerdict AnswerRouteDetail(const SProfile &profile, const SMMRfRouteDetailReqV7 &request,
                           SMMRfRouteDetailCnfV7 &answer)
{
    answer = {};
    if (request.radioKind != 1)
        return EResult::RadioKind;
    for (int i = 0; i < request.rxType1Count; ++i) {
        const SProfileRxRoute *row = FindRoute(profile.rxType1Routes, request.rxType1Route[i]);
        if (row == nullptr)
            return EResult::UnknownRoute;
        answer.rxType1[i] = RxHardware(row->hardware, false);
    }
    for (int i = 0; i < request.rxType2Count; ++i) {
        const SProfileRxRoute *row = FindRoute(profile.rxType2Routes, request.rxType2Route[i]);
        if (row == nullptr)
            return EResult::UnknownRoute;
        answer.rxType2[i] = RxHardware(row->hardware, true);
    }
    for (int i = 0; i < request.txPairCount; ++i) {
        const SMMRfRouteDetailTxPair &pair = request.txPair[i];
        if (FindRoute(profile.txRoutes, pair.route) == nullptr)
            return EResult::UnknownRoute;
        const SProfileBwRegion *region = FindRegion(profile, pair);
        if (region == nullptr)
            return EResult::BandwidthRegion;
        answer.txPair[i] = TxHardware(region->hardware);
    }
    return {};
}

const char *ChipName(const SProfileChip &chip, uint32_t id)
{
    for (const SProfileChipName &row : chip.names) {
        if (row.id == id)
            return row.name.c_str();
    }
    return nullptr;
}
