// Common members of the TX pages: routes, SCS, bandwidths, slot format, MIMO, bandwidth regions.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/EntryTable.h"
#include "Controller/capability/TextTable.h"
#include "Controller/capability/VrbRanges.h"
#include "Controller/fields/CommandConversions.h"

namespace {

// The enable states of a member that the second carrier shares: by band for the first carrier, by
// carrier count and band for the second, which is off while there is one carrier.
class CCarrierFlags
{
public:
    void Put(const QString &band, int flag)
    {
        m_first.Put(band, flag);
        m_second.Put(QLatin1String("1,") + band, 0);
        m_second.Put(QLatin1String("2,") + band, flag);
    }
    QJsonObject First() { return m_first.ToObject(); }
    QJsonObject Second() { return m_second.ToObject(); }

private:
    CObjectTable m_first;
    CObjectTable m_second;
};

// The text that names a region's limits, MHz.
QString RegionRange(uint32_t lowerMhz, const QString &region, uint32_t upperMhz)
{
    return QString::number(lowerMhz) + QLatin1String(" < ") + region + QLatin1String(" <= ") +
           QString::number(upperMhz) + QLatin1String("MHz");
}

}  // namespace

bool CNrDataModelCapUpdater::UpdateModulationTxCommonV7(QJsonObject &doc,
                                                        const SModulationTxCommonPathV7 path,
                                                        const bool secondCarrierKeys)
{
    const SBandTables tables = ReadBandTables(path.bands);
    const QString band0 = path.bands.at(0).toString();
    CCarrierFlags slotTable;
    CCarrierFlags mimoTable;
    CTextTable mimoValues;
    CTextTable routeTable;
    for (const QJsonValue &element : path.bands) {
        const QString name = element.toString();
        const int band = BandNumber(name);
        slotTable.Put(name, tables.slotFlags.value(name).toInt());
        mimoTable.Put(name, IsBandMimoSupported(EBandDirection::Tx, band) ? 1 : 0);
        mimoValues.Put(name, std::string_view("false"));
        QStringList routes;
        if (GetTxRoutesByBand(routes, band))
            routeTable.Put(name, routes);
    }

    const QJsonObject slotFlags = slotTable.First();
    const QJsonObject mimo = mimoTable.First();
    const QJsonObject secondSlots = secondCarrierKeys ? slotTable.Second() : slotFlags;
    const QJsonObject secondMimo = secondCarrierKeys ? mimoTable.Second() : mimo;
    const QJsonObject routes = routeTable.ToObject();
    const SVrbRanges vrb = VrbRanges();
    return CDocumentWriter(doc).Write({
        {path.slotEnablePairPaths.First(), slotFlags, "Update slot format failed"},
        {path.slotEnablePairPaths.Second(), secondSlots, "Update slot format failed"},
        {path.slotDefaultEnablePaths, slotFlags.value(band0).toInt(),
         "Update slot format default enable failed"},
        {path.mimoValuePairPaths, mimoValues.ToObject(), "Update mimo band value pair failed"},
        {path.mimoEnablePairPaths.First(), mimo, "Update mimo enable failed"},
        {path.mimoEnablePairPaths.Second(), secondMimo, "Update mimo enable failed"},
        {path.mimoDefaultEnablePaths, mimo.value(band0).toInt(),
         "Update mimo enable default enable failed"},
        {path.routeValuePairPaths, routes, "Update route failed"},
        {path.routeDefaultPaths, routes.value(band0).toArray().at(0).toString(),
         "Update route default value failed"},
        {path.bwValuePairPaths, tables.rb, "Update UL Bandwidth failed"},
        {path.bwDefaultPaths, tables.defaultRb, "Update UL Bandwidth default value failed"},
        {path.scsValuePairPaths, tables.scs, "Update SCS failed"},
        {path.scsDefaultPaths, tables.defaultScs, "Update SCS default value failed"},
        {path.vrbStartValuePairPaths, vrb.start, "Update VRB start range failed"},
        {path.vrbLengthValuePairPaths, vrb.length, "Update VRB length range failed"},
    });
}

bool CNrDataModelCapUpdater::UpdateCwTxCommonV7(QJsonObject &doc, const SCWTxCommonPathV7 path)
{
    CDocumentWriter writer(doc);
    std::vector<STxRouteInfoV7> table;
    if (!m_target.GetTxCommonPathV7(table, false))
        return writer.Fail("Get route info from L1 capbiliy failed ");

    CTextTable routeTable;
    CTextTable regionTable;
    CTextTable rangeTable;
    for (const QJsonValue &element : path.bands) {
        const QString name = element.toString();
        QStringList routes;
        if (!GetTxRoutesByBand(routes, BandNumber(name)))
            continue;
        routeTable.Put(name, routes);
        for (const QString &route : qAsConst(routes)) {
            const STxRouteInfoV7 *row = RowOf(table, GetTxRouteIndex(route.toInt()));
            QStringList regions;
            uint32_t lowerMhz = 0;
            for (int i = 0; row && i < row->bwRegionCount; ++i) {
                const QString region = QLatin1String("BW") + QString::number(i);
                const uint32_t upperMhz = row->bwRegionLimitKhz[i] / 1000;
                regions.append(region);
                rangeTable.Put(route + QLatin1Char(',') + region,
                               RegionRange(lowerMhz, region, upperMhz));
                lowerMhz = upperMhz;
            }
            regionTable.Put(route, regions);
        }
    }

    const QJsonObject routes = routeTable.ToObject();
    const QJsonObject ranges = rangeTable.ToObject();
    const QString defaultRoute =
        routes.value(path.bands.at(0).toString()).toArray().at(0).toString();
    return writer.Write({
        {path.routeValuePairPath,
         routes,
         {"Update comp route failed", "Update comp rRoute failed"}},
        {path.routeDefaultPath,
         defaultRoute,
         {"Update comp route default value failed", "Update comp Route default value  failed"}},
        {path.bwRegionValuePairPath, regionTable.ToObject(), "Update BW region failed"},
        {path.bwRegionDefaultPath,
         "BW0",
         {"Update BW region default value failed", "Update BW region default value  failed"}},
        {path.bwRangeValuePairPath, ranges, "Update BW region failed"},
        {path.bwRangeDefaultPath,
         ranges.value(defaultRoute + QLatin1String(",BW0")).toString(),
         {"Update BW range default value failed", "Update BW range default value  failed"}},
    });
}
