// The route caches: which routes a band has, and where a route stands in its table.
//
// Filled on first need; the tables behind them are cached by the capability reader, so an empty
// cache costs no call to the DUT.
#include "Controller/capability/NrDataModelCapUpdater.h"

namespace {

// Records each route number with its first row.
template <typename Route>
QMap<int, int> FirstRows(const std::vector<Route> &routes)
{
    QMap<int, int> rows;
    for (std::size_t i = 0; i < routes.size(); ++i) {
        if (!rows.contains(routes[i].route))
            rows.insert(routes[i].route, static_cast<int>(i));
    }
    return rows;
}

}  // namespace

void CNrDataModelCapUpdater::ResetCapabilityCache()
{
    New3gppDataModel();
    m_txRoutesByBand.clear();
    m_rxType1RoutesByBand.clear();
    m_rxType2RoutesByBand.clear();
    m_txRouteIndex.clear();
    m_rxRouteIndex.clear();
}

bool CNrDataModelCapUpdater::GetTxRoutesByBand(QStringList &routes, int band)
{
    if (m_txRoutesByBand.isEmpty()) {
        std::vector<STxRouteInfoV7> table;
        if (!m_target.GetTxCommonPathV7(table, false))
            return false;
        for (const STxRouteInfoV7 &row : table)
            m_txRoutesByBand[row.band].append(QString::number(row.route));
    }
    routes = m_txRoutesByBand.value(band);
    return true;
}

bool CNrDataModelCapUpdater::GetRxRoutesByBand(QStringList &routes, int routeType, int band)
{
    if (m_rxType1RoutesByBand.isEmpty() && m_rxType2RoutesByBand.isEmpty()) {
        std::vector<SRxRouteInfoV7> table;
        if (!m_target.GetRxCommonPathV7(table, false))
            return false;
        for (const SRxRouteInfoV7 &row : table) {
            if (row.routeType == 1)
                m_rxType1RoutesByBand[row.band].append(QString::number(row.route));
            else if (row.routeType == 2)
                m_rxType2RoutesByBand[row.band].append(QString::number(row.route));
        }
    }
    routes.clear();
    if (routeType == 1)
        routes = m_rxType1RoutesByBand.value(band);
    else if (routeType == 2)
        routes = m_rxType2RoutesByBand.value(band);
    return true;
}

int CNrDataModelCapUpdater::GetTxRouteIndex(int route)
{
    std::vector<STxRouteInfoV7> table;
    if (m_txRouteIndex.isEmpty() && m_target.GetTxCommonPathV7(table, false))
        m_txRouteIndex = FirstRows(table);
    return m_txRouteIndex.value(route, -1);
}

int CNrDataModelCapUpdater::GetRxRouteIndex(int route)
{
    std::vector<SRxRouteInfoV7> table;
    if (m_rxRouteIndex.isEmpty() && m_target.GetRxCommonPathV7(table, false))
        m_rxRouteIndex = FirstRows(table);
    return m_rxRouteIndex.value(route, -1);
}
