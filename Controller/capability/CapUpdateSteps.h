// The steps of the capability update, each bound to the record that tells where it writes: what the
// update of a page is made of.
//
// Contract of the steps: NrDataModelCapUpdater.h.
//
//   constexpr SPageUpdate kContRxUpdate{.freq = kContRxFreq,
//                                       .withRangeCheck = false,
//                                       .steps = {RxCommon<kContRx>}};
#pragma once

#include "Controller/capability/NrDataModelCapUpdater.h"

namespace CapUpdateSteps {

using Updater = CNrDataModelCapUpdater;

template <const SModulationTxCommonPaths &paths, bool secondCarrierKeys = false>
bool ModulationTxCommon(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateModulationTxCommonV7(doc, {paths, bands}, secondCarrierKeys);
}

template <const SCWTxCommonPaths &paths>
bool CwTxCommon(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateCwTxCommonV7(doc, {paths, bands});
}

template <const SHwSettingPaths &paths>
bool TxHwByScsRb(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateTxHwSettingByScsRBv7(doc, {paths, bands});
}

template <const SHwSettingPaths &paths>
bool TxHwByBwRegion(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateTxHwSettingByBwRegion(doc, {paths, bands});
}

template <const SRxCommonPaths &paths>
bool RxCommon(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateRxCommonV7(doc, {paths, bands});
}

template <const SHwSettingPaths &paths>
bool RxHw(Updater &updater, QJsonObject &doc, const QJsonArray &bands)
{
    return updater.UpdateRxHwSettingAndTxRouteV7(doc, {paths, bands}, {}, {});
}

template <const SRxGainInfoPathV7 &paths>
bool RssiGain(Updater &updater, QJsonObject &doc, const QJsonArray &)
{
    return updater.UpdateRSSIGainInfoV7(doc, paths);
}

inline bool LnaCaptions(Updater &updater, QJsonObject &doc, const QJsonArray &)
{
    return updater.UpdateLnaCaptionsV7(doc);
}

}  // namespace CapUpdateSteps
