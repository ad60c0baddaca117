// Bands of the DUT and their frequency limits.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include <algorithm>

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/EntryTable.h"
#include "Controller/capability/FrequencyRange.h"
#include "Controller/fields/CommandConversions.h"
#include "Model/JsonPath.h"
#include "Support/Log.h"

namespace {

QJsonObject RouteRange(const SRouteFreqRangeHalf &half, int route, bool withRangeCheck)
{
    const int count = std::min<int>(half.count, kVondMaxFreqLimits);
    const auto *end = half.route + count;
    const auto *found = std::find(half.route, end, route);
    if (found == end)
        return {};
    const auto row = found - half.route;
    return FrequencyRange(half.low[row], half.high[row], withRangeCheck);
}

// The target fills the low byte alone for this check.
bool HasRouteRanges(const SRouteFreqRangeHalf &half, int band)
{
    const auto *end = half.band + std::min(half.count & 0xff, kVondMaxFreqLimits);
    return std::find(half.band, end, band) != end;
}

}  // namespace

bool CNrDataModelCapUpdater::UpdateBandAndFrequency(QJsonObject &doc, const SBandFreqPathV7 path,
                                                    const bool withRangeCheck)
{
    CDocumentWriter writer(doc);
    QJsonArray bands;
    if (!GetSupportedBandArray(bands, path.bandFilter))
        return writer.Fail("Get band info failed");
    if (!bands.isEmpty() && !writer.Write(path.bandValuePaths, bands, "Update band failed"))
        return false;
    if (!writer.Write(path.bandDefaultPaths, bands.at(0).toString(),
                      "Update band default value failed"))
        return false;

    const QJsonObject frequencies = GetFrequencyJsonObjectPair(path.bandFilter.direction, bands,
                                                               path.useRouteRange, withRangeCheck);
    if (frequencies.isEmpty())
        return bands.isEmpty() ? writer.Fail("Get frequency value relation failed") : true;
    return writer.Write(path.freqValuePairPaths, frequencies, "Update frequency value failed");
}

bool CNrDataModelCapUpdater::GetSupportedBandArray(QJsonArray &bands, const SBandFilterV7 &filter)
{
    std::vector<SBandCapEntry> entries;
    if (!m_target.GetBandList(filter.direction, entries))
        return false;
    const QJsonObject operatingBand = Table3gpp("operatingBand");
    const auto isFdd = [&operatingBand](const QString &name) {
        return GetJsonValueConst(operatingBand, name + QLatin1String(".duplex"))
            .toString()
            .contains(QLatin1String("FDD"));
    };
    for (const SBandCapEntry &entry : entries) {
        const QString name = QStringLiteral("n%1").arg(entry.band);
        if (filter.mimoOnly && entry.mimoSupported != 1)
            continue;
        if (filter.fddOnly && (entry.supplementary != 0 || !isFdd(name)))
            continue;
        bands.append(name);
    }
    return true;
}

bool CNrDataModelCapUpdater::IsBandMimoSupported(EBandDirection direction, int band)
{
    std::vector<SBandCapEntry> entries;
    m_target.GetBandList(direction, entries);
    return std::any_of(entries.begin(), entries.end(), [band](const SBandCapEntry &entry) {
        return entry.band == band && entry.mimoSupported == 1;
    });
}

QJsonObject CNrDataModelCapUpdater::GetFrequencyJsonObjectPair(EBandDirection direction,
                                                               const QJsonArray &bands,
                                                               const bool useRouteRange,
                                                               const bool withRangeCheck)
{
    return direction == EBandDirection::Tx
               ? GetTxFrequencyJsonObjectPair(bands, useRouteRange, withRangeCheck)
               : GetRxFrequencyJsonObjectPair(bands, useRouteRange, withRangeCheck);
}

QJsonObject CNrDataModelCapUpdater::GetTxFrequencyJsonObjectPair(const QJsonArray &bands,
                                                                 const bool useRouteRange,
                                                                 const bool withRangeCheck)
{
    return FrequencyPair(
        {&GetUplinkRange3gpp, &SRouteFreqRangeV7::tx,
         [this](QStringList &routes, int band) { return GetTxRoutesByBand(routes, band); }},
        bands, useRouteRange, withRangeCheck);
}

QJsonObject CNrDataModelCapUpdater::GetRxFrequencyJsonObjectPair(const QJsonArray &bands,
                                                                 const bool useRouteRange,
                                                                 const bool withRangeCheck)
{
    const auto routesOfBothTypes = [this](QStringList &routes, int band) {
        QStringList type2;
        if (!GetRxRoutesByBand(routes, 1, band) || !GetRxRoutesByBand(type2, 2, band))
            return false;
        routes += type2;
        return true;
    };
    return FrequencyPair({&GetDownlinkRange3gpp, &SRouteFreqRangeV7::rx, routesOfBothTypes}, bands,
                         useRouteRange, withRangeCheck);
}

QJsonObject CNrDataModelCapUpdater::FrequencyPair(const SFrequencySource &source,
                                                  const QJsonArray &bands, bool useRouteRange,
                                                  bool withRangeCheck) const
{
    const QJsonObject operatingBand = Table3gpp("operatingBand");
    SRouteFreqRangeV7 limits = {};
    if (useRouteRange && !m_target.GetFreqRangeBlock(limits)) {
        qCCritical(lcUpdate) << "Get route frequency range from L1 failed";
        return {};
    }
    const SRouteFreqRangeHalf &half = limits.*source.half;

    // Routes are keyed by number alone: one that serves two bands keeps the range of the later.
    CObjectTable pairs;
    for (const QJsonValue &element : bands) {
        const QString name = element.toString();
        const QJsonObject bandRange = source.bandRange(operatingBand, name, withRangeCheck);
        if (!useRouteRange) {
            pairs.Put(name, bandRange);
            continue;
        }
        const int band = BandNumber(name);
        QStringList routes;
        if (!source.routes(routes, band)) {
            qCCritical(lcUpdate) << "Get route by band failed";
            return {};
        }
        const bool hasRouteRanges = HasRouteRanges(half, band);
        for (const QString &route : qAsConst(routes)) {
            const QJsonObject routeRange =
                hasRouteRanges ? RouteRange(half, route.toInt(), withRangeCheck) : QJsonObject();
            pairs.Put(route, routeRange.isEmpty() ? bandRange : routeRange);
        }
    }
    return pairs.ToObject();
}

QJsonObject CNrDataModelCapUpdater::GetUplinkRangeByRoute(const SRouteFreqRangeV7 &range, int route,
                                                          bool withRangeCheck)
{
    return RouteRange(range.tx, route, withRangeCheck);
}

QJsonObject CNrDataModelCapUpdater::GetDownlinkRangeByRoute(const SRouteFreqRangeV7 &range,
                                                            int route, bool withRangeCheck)
{
    return RouteRange(range.rx, route, withRangeCheck);
}
