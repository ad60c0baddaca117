// Common members and hardware labels of the RX pages.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/HwLabels.h"
#include "Controller/capability/TextTable.h"
#include "Controller/capability/VrbRanges.h"
#include "Controller/fields/CommandConversions.h"

bool CNrDataModelCapUpdater::UpdateRxCommonV7(QJsonObject &doc, const SRxCommonPathV7 path)
{
    const QLatin1String type1Key(path.byRouteType ? ",Type1" : "");
    CTextTable routeTable;
    CTextTable typeTable;
    for (const QJsonValue &element : path.bands) {
        const QString name = element.toString();
        const int band = BandNumber(name);
        QStringList routes;
        QStringList types;
        if (GetRxRoutesByBand(routes, 1, band)) {
            routeTable.Put(name + type1Key, routes);
            types.append("Type1");
        }
        if (!path.byRouteType)
            continue;
        if (GetRxRoutesByBand(routes, 2, band) && !routes.isEmpty()) {
            routeTable.Put(name + QLatin1String(",Type2"), routes);
            types.append("Type2");
        }
        typeTable.Put(name, types);
    }

    const SBandTables tables = ReadBandTables(path.bands);
    const QString band0 = path.bands.at(0).toString();
    const QJsonObject routes = routeTable.ToObject();
    const SVrbRanges vrb = path.vrbStartValuePairPaths.IsEmpty() ? SVrbRanges() : VrbRanges();
    // The words UL are shared with the TX pages.
    return CDocumentWriter(doc).Write({
        {path.slotEnablePairPaths, tables.slotFlags, "Update slot format failed"},
        {path.slotDefaultEnablePaths, tables.slotFlags.value(band0).toInt(),
         "Update slot format default enable failed"},
        {path.routeValuePairPaths, routes, "Update route route failed"},
        {path.routeDefaultPaths, routes.value(band0 + type1Key).toArray().at(0).toString(),
         "Update route default value failed"},
        {path.byRouteType ? path.routeTypeValuePairPaths : SPaths(), typeTable.ToObject(),
         "Update route type failed"},
        {path.rbBwValuePairPaths, tables.rb, "Update UL Bandwidth failed"},
        {path.rbBwDefaultPaths, tables.defaultRb, "Update UL Bandwidth RB default value failed"},
        {path.mhzBwValuePairPaths, tables.mhz, "Update UL Bandwidth failed"},
        {path.mhzBwDefaultPaths, tables.defaultMhz, "Update UL Bandwidth default value failed"},
        {path.scsValuePairPaths, tables.scs, "Update SCS failed"},
        {path.scsDefaultPaths, tables.defaultScs, "Update SCS default value failed"},
        {path.vrbStartValuePairPaths, vrb.start, "Update VRB start range failed"},
        {path.vrbLengthValuePairPaths, vrb.length, "Update VRB length range failed"},
    });
}

bool CNrDataModelCapUpdater::UpdateRxHwSettingAndTxRouteV7(QJsonObject &doc,
                                                           const SHwSettingV7 path,
                                                           const SPaths txRouteValuePairPath,
                                                           const SPaths txRouteDefaultPath)
{
    CDocumentWriter writer(doc);
    std::vector<SRxRouteInfoV7> table;
    if (!m_target.GetRxCommonPathV7(table, true))
        return writer.Fail("Get HW setting from L1 capbiliy failed ");

    const THwLabels noLabels = SameHwLabels("");
    CHwLabelTable path0;
    CHwLabelTable path1;
    CTextTable txRouteTable;
    QString defaultTxRoute;
    for (const QJsonValue &element : path.bands) {
        const int band = BandNumber(element.toString());
        QStringList routes;
        if (!GetRxRoutesByBand(routes, 1, band))
            continue;
        for (const QString &route : qAsConst(routes)) {
            const SRxRouteInfoV7 *row = RowOf(table, GetRxRouteIndex(route.toInt()));
            if (!row)
                continue;
            const QString key = path.byRouteType ? route + QLatin1String(",Type1") : route;
            if (!path0.HasDefaults())
                defaultTxRoute = row->txRoutes.value(0);
            path0.Put(key, HwLabels(row->hw, 1, 0));
            path1.Put(key, noLabels);
            if (!txRouteValuePairPath.IsEmpty())
                txRouteTable.Put(route, row->txRoutes);
        }
        if (!GetRxRoutesByBand(routes, 2, band))
            continue;
        for (const QString &route : qAsConst(routes)) {
            const SRxRouteInfoV7 *row = RowOf(table, GetRxRouteIndex(route.toInt()));
            if (!row)
                continue;
            const QString key = route + QLatin1String(",Type2");
            path0.PutNoDefault(key, HwLabels(row->hw, 2, 0));
            path1.PutNoDefault(key, HwLabels(row->hw, 2, 1));
        }
    }

    return WriteHwLabels(writer, path.valuePairs, path.defaults, path0) &&
           WriteHwLabels(writer, path.path1ValuePairs, {}, path1) &&
           writer.Write({
               {txRouteValuePairPath, txRouteTable.ToObject(),
                "Update tx list route by rx route value faile"},
               {txRouteDefaultPath, defaultTxRoute,
                "Update  tx list route by rx route default value failed"},
           });
}
