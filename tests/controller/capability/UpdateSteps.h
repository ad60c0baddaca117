// The steps of the update that read the DUT, each on a page that takes it, to be run alone.
//
//   for (const SUpdateStep &step : kUpdateSteps)
//       step.run(updater, document, {"n1"});
#pragma once

#include <QJsonArray>

#include "Controller/capability/CapUpdatePages.h"
#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"

struct SUpdateStep
{
    const char *name;
    EPageId page;
    bool (*run)(CNrDataModelCapUpdater &updater, QJsonObject &document, const QJsonArray &bands);
};

inline const SUpdateStep kUpdateSteps[] = {
    {"BandAndFrequency", EPageId::ContRx,
     [](auto &updater, auto &document, const auto &) {
         return updater.UpdateBandAndFrequency(document, CapUpdatePages::kContRxFreq, false);
     }},
    {"ModulationTxCommon", EPageId::PuschTxForce,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateModulationTxCommonV7(document, {CapUpdatePages::kPuschForced, bands},
                                                   false);
     }},
    {"CwTxCommon", EPageId::SingleToneTx,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateCwTxCommonV7(document, {CapUpdatePages::kSingleTone, bands});
     }},
    {"TxHwByScsRb", EPageId::PuschTxForce,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateTxHwSettingByScsRBv7(document, {CapUpdatePages::kTxHw, bands});
     }},
    {"TxHwByBwRegion", EPageId::SingleToneTx,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateTxHwSettingByBwRegion(document, {CapUpdatePages::kTxHw, bands});
     }},
    {"RxCommon", EPageId::ContRx,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateRxCommonV7(document, {CapUpdatePages::kContRx, bands});
     }},
    {"RxHwAndTxRoute", EPageId::Rssi,
     [](auto &updater, auto &document, const auto &bands) {
         return updater.UpdateRxHwSettingAndTxRouteV7(document, {CapUpdatePages::kRssiHw, bands},
                                                      {}, {});
     }},
    {"RssiGain", EPageId::Rssi,
     [](auto &updater, auto &document, const auto &) {
         return updater.UpdateRSSIGainInfoV7(document, CapUpdatePages::kRssiGain);
     }},
    {"LnaCaptions", EPageId::RxPathLoss,
     [](auto &updater, auto &document, const auto &) {
         return updater.UpdateLnaCaptionsV7(document);
     }},
};
