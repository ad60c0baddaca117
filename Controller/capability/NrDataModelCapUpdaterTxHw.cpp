// Hardware labels of the TX pages, by what the page selects: route, SCS and RB count, or route and
// bandwidth region.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/HwLabels.h"
#include "Controller/fields/CommandConversions.h"

namespace {

// An SCS and RB count of a band: how a key ends, and the bandwidth that they stand for.
struct SCarrier
{
    QString suffix;    // ",15kHz,25 RB"
    int bandwidthKhz;  // -1: the pair stands for none
};

// The bandwidth region of a bandwidth: the first one whose limit it does not exceed. Beyond the
// last limit it is the first region.
std::size_t RegionOf(const STxRouteInfoV7 &row, int bandwidthKhz)
{
    for (int i = 0; i < row.bwRegionCount; ++i) {
        if (static_cast<uint32_t>(bandwidthKhz) <= row.bwRegionLimitKhz[i])
            return static_cast<std::size_t>(i);
    }
    return 0;
}

// Many carriers share a region.
using TRegionLabels = std::array<THwLabels, kVondMaxBwRegions>;
TRegionLabels RegionLabels(const STxRouteInfoV7 &row)
{
    TRegionLabels labels;
    for (std::size_t i = 0; i < labels.size(); ++i)
        labels[i] = HwLabels(row.bwRegion[i]);
    return labels;
}

}  // namespace

bool CNrDataModelCapUpdater::UpdateTxHwSettingByScsRBv7(QJsonObject &doc, const SHwSettingV7 path)
{
    CDocumentWriter writer(doc);
    std::vector<STxRouteInfoV7> table;
    if (!m_target.GetTxCommonPathV7(table, true))
        return writer.Fail("Get HW setting from L1 capbiliy failed ");

    const QJsonObject scsByBand = Table3gpp("SCSkHzByBand");
    const QJsonObject rbByBandScs = Table3gpp("RBNumByBandSCS");
    const auto carriersOf = [&](const QString &band) {
        std::vector<SCarrier> carriers;
        const QJsonArray scsNames = scsByBand.value(band).toArray();
        for (const QJsonValue &element : scsNames) {
            const QString scs = element.toString();
            const QJsonArray counts = rbByBandScs.value(band + QLatin1Char(',') + scs).toArray();
            for (const QJsonValue &count : counts) {
                const QString rb = count.toString();
                carriers.push_back(
                    {QLatin1Char(',') + scs + QLatin1Char(',') + rb, GetBandwidthByScsRb(scs, rb)});
            }
        }
        return carriers;
    };

    const THwLabels notFound = SameHwLabels("Not found");
    CHwLabelTable labels;
    for (const QJsonValue &element : path.bands) {
        const QString band = element.toString();
        QStringList routes;
        if (!GetTxRoutesByBand(routes, BandNumber(band)))
            continue;
        const std::vector<SCarrier> carriers = carriersOf(band);
        for (const QString &route : qAsConst(routes)) {
            const STxRouteInfoV7 *row = RowOf(table, GetTxRouteIndex(route.toInt()));
            const TRegionLabels ofRegions = row ? RegionLabels(*row) : TRegionLabels();
            for (const SCarrier &carrier : carriers) {
                const QString key = route + carrier.suffix;
                if (carrier.bandwidthKhz == -1 || !row)
                    labels.PutNoDefault(key, notFound);
                else
                    labels.Put(key, ofRegions[RegionOf(*row, carrier.bandwidthKhz)]);
            }
        }
    }
    return WriteHwLabels(writer, path.valuePairs, path.defaults, labels);
}

bool CNrDataModelCapUpdater::UpdateTxHwSettingByBwRegion(QJsonObject &doc, const SHwSettingV7 path)
{
    CDocumentWriter writer(doc);
    std::vector<STxRouteInfoV7> table;
    if (!m_target.GetTxCommonPathV7(table, true))
        return writer.Fail("Get HW setting from L1 capbiliy failed ");

    CHwLabelTable labels;
    for (const QJsonValue &element : path.bands) {
        QStringList routes;
        if (!GetTxRoutesByBand(routes, BandNumber(element.toString())))
            continue;
        for (const QString &route : qAsConst(routes)) {
            const STxRouteInfoV7 *row = RowOf(table, GetTxRouteIndex(route.toInt()));
            for (int i = 0; row && i < row->bwRegionCount; ++i)
                labels.Put(route + QLatin1String(",BW") + QString::number(i),
                           HwLabels(row->bwRegion[i]));
        }
    }
    return WriteHwLabels(writer, path.valuePairs, path.defaults, labels);
}
