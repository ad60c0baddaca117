// Turns a page's document from a template into the document of the DUT that is connected.
//
// The resource of a page names one band, one route and a few sample values. The updater crosses
// what the DUT reports (bands, routes, hardware settings, frequency limits, gain modes) with the
// 3GPP band tables of Nr3gpp.json, and writes the results into the document as choices, limits,
// enable states and defaults. Which steps a page takes, and where they write, stands in
// CapUpdatePages.h; the steps stand by subject in the sources that carry this name.
//
// All frequencies and bandwidths are kHz. A step that fails logs and reports into the document's
// integrity record and returns false; what was written before stays, what was to come stays as the
// template has it, and the driver skips the rest.
//
// Reads of the DUT block the calling thread the first time after a reset. Not thread-safe: the core
// calls it under its lock. The caches live until ResetCapabilityCache, across pages.
//
//   CNrDataModelCapUpdater updater;
//   updater.ResetCapabilityCache();
//   updater.UpdateContRxV7(document);
#pragma once

#include <functional>
#include <memory>

#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include "Controller/capability/CapUpdatePaths.h"
#include "Operations/capability/TargetCapability.h"

class CNrDataModelCapUpdater
{
public:
    // Loads the 3GPP tables anew and forgets the routes.
    void ResetCapabilityCache();
    // False, with a critical log line, when the tables cannot be read; the bands then mean nothing.
    bool New3gppDataModel();

    // The update of a page: bands and frequencies, then its further steps until one fails.
    bool Update(QJsonObject &doc, const SPageUpdate &page);
    // The same as a driver of the page table.
    template <const SPageUpdate &page>
    bool UpdateBy(QJsonObject &doc)
    {
        return Update(doc, page);
    }
    // The drivers: a page's document patched in place.
    bool UpdatePuschTxForceModeV7(QJsonObject &doc);
    bool UpdatePuschTxNormalModeV7(QJsonObject &doc);
    bool UpdateSingleToneTxV7(QJsonObject &doc);
    bool UpdateRsrpForceModeV7(QJsonObject &doc);
    bool UpdateRsrpNormalModeV7(QJsonObject &doc);
    bool UpdateAptProfileV7(QJsonObject &doc);
    bool UpdateContRxV7(QJsonObject &doc);
    bool UpdateRssiV7(QJsonObject &doc);
    bool UpdatePathLossV7(QJsonObject &doc);

    // The steps.
    bool UpdateBandAndFrequency(QJsonObject &doc, const SBandFreqPathV7 path,
                                const bool withRangeCheck);
    // secondCarrierKeys: the second path of the slot and MIMO lists gets the object whose keys have
    // the carrier count, too.
    bool UpdateModulationTxCommonV7(QJsonObject &doc, const SModulationTxCommonPathV7 path,
                                    const bool secondCarrierKeys);
    bool UpdateCwTxCommonV7(QJsonObject &doc, const SCWTxCommonPathV7 path);
    bool UpdateTxHwSettingByScsRBv7(QJsonObject &doc, const SHwSettingV7 path);
    bool UpdateTxHwSettingByBwRegion(QJsonObject &doc, const SHwSettingV7 path);
    bool UpdateRxCommonV7(QJsonObject &doc, const SRxCommonPathV7 path);
    bool UpdateRxHwSettingAndTxRouteV7(QJsonObject &doc, const SHwSettingV7 path,
                                       const SPaths txRouteValuePairPath,
                                       const SPaths txRouteDefaultPath);
    bool UpdateRSSIGainInfoV7(QJsonObject &doc, const SRxGainInfoPathV7 path);
    // Captions of the LNA columns, and the LNA choices by power mode.
    bool UpdateLnaCaptionsV7(QJsonObject &doc);

    // Bands of a filter as names ("n78"), in the DUT's order. False when the read failed.
    bool GetSupportedBandArray(QJsonArray &bands, const SBandFilterV7 &filter);
    bool IsBandMimoSupported(EBandDirection direction, int band);

    // Frequency limits by route ("1") or by band ("n78"); empty when a read failed.
    QJsonObject GetFrequencyJsonObjectPair(EBandDirection direction, const QJsonArray &bands,
                                           const bool useRouteRange, const bool withRangeCheck);
    QJsonObject GetTxFrequencyJsonObjectPair(const QJsonArray &bands, const bool useRouteRange,
                                             const bool withRangeCheck);
    QJsonObject GetRxFrequencyJsonObjectPair(const QJsonArray &bands, const bool useRouteRange,
                                             const bool withRangeCheck);
    // Limits that the DUT declares for a route; empty when it declares none.
    static QJsonObject GetUplinkRangeByRoute(const SRouteFreqRangeV7 &range, int route,
                                             bool withRangeCheck);
    static QJsonObject GetDownlinkRangeByRoute(const SRouteFreqRangeV7 &range, int route,
                                               bool withRangeCheck);
    // Limits of a band (3GPP TS 38.101-1 table 5.2-1); an open range for an unknown one.
    static QJsonObject GetUplinkRange3gpp(const QJsonObject &operatingBand, QString band,
                                          bool withRangeCheck);
    static QJsonObject GetDownlinkRange3gpp(const QJsonObject &operatingBand, QString band,
                                            bool withRangeCheck);
    // Channel bandwidth in kHz of an SCS ("15kHz") and RB count ("25 RB"); -1 for an unknown pair.
    int GetBandwidthByScsRb(QString scs, QString rb) const;

    // Route numbers of a band as texts, in table order. False only when the table cannot be read.
    bool GetTxRoutesByBand(QStringList &routes, int band);
    bool GetRxRoutesByBand(QStringList &routes, int routeType, int band);
    // Row of a route in its table: the first one; -1 when there is none.
    int GetTxRouteIndex(int route);
    int GetRxRouteIndex(int route);

private:
    // What the 3GPP tables say about bands. Each object has the keys of the members that show it.
    struct SBandTables
    {
        QJsonObject slotFlags;  // band -> 1 for TDD, 0 otherwise: is there a slot format to choose
        QJsonObject scs;        // band -> SCS
        QJsonObject rb;         // "band,SCS" -> RB counts
        QJsonObject mhz;        // band -> channel bandwidths
        QString defaultScs;
        QString defaultRb;
        QString defaultMhz;
    };
    SBandTables ReadBandTables(const QJsonArray &bands) const;
    // A table of the 3GPP document, such as "operatingBand".
    QJsonObject Table3gpp(const char *name) const;

    // Where the frequency limits of a direction come from.
    struct SFrequencySource
    {
        QJsonObject (*bandRange)(const QJsonObject &operatingBand, QString band,
                                 bool withRangeCheck);
        SRouteFreqRangeHalf SRouteFreqRangeV7::*half;
        std::function<bool(QStringList &routes, int band)> routes;
    };
    QJsonObject FrequencyPair(const SFrequencySource &source, const QJsonArray &bands,
                              bool useRouteRange, bool withRangeCheck) const;

    // The part that both RSRP pages end with: the pseudo TX members, which follow the band.
    bool UpdatePseudoTx(QJsonObject &doc, const QJsonArray &bands, const char *group);
    bool UpdateRsrpFrequency(QJsonObject &doc, const QJsonArray &bands, bool useRouteRange);

    using TRoutesByBand = QMap<int, QStringList>;  // band number to route numbers
    using TRowByRoute = QMap<int, int>;            // route number to its first row

    std::unique_ptr<QJsonObject> m_3gppDataModel = std::make_unique<QJsonObject>();
    TRoutesByBand m_txRoutesByBand;
    TRoutesByBand m_rxType1RoutesByBand;
    TRoutesByBand m_rxType2RoutesByBand;
    TRowByRoute m_txRouteIndex;
    TRowByRoute m_rxRouteIndex;
    CTargetCapability m_target;
};

// A row of a route table; null when the index is beyond it. That happens when a reset came between
// the reads of index and table; the document is dropped then anyway.
template <typename Route>
const Route *RowOf(const std::vector<Route> &table, int index)
{
    const auto row = static_cast<std::size_t>(index);
    return index >= 0 && row < table.size() ? &table[row] : nullptr;
}
