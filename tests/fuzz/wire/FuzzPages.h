// The documents that the pages of a DUT start from, and what a page makes of them.
//
//   const QJsonObject document = PatchedPage(EPageId::ContRx);     // by the DUT that is plugged
//   const QJsonObject packaged = PackagedPage(EPageId::ContRx, document);
//   const QJsonObject altered = Merged(packaged, {{"modelName", 5}}).toObject();
#pragma once

#include <QJsonObject>

#include "Controller/core/PageTable.h"

// The pages that have a document.
constexpr EPageId kFuzzPages[] = {
    EPageId::Rssi,         EPageId::ContRx,        EPageId::RxPathLoss,
    EPageId::RsrpForce,    EPageId::RsrpNormal,    EPageId::SingleToneTx,
    EPageId::PuschTxForce, EPageId::PuschTxNormal, EPageId::AptProfile,
};

// An unknown name is the first of the pages.
EPageId PageOf(const QString &name);
bool IsCalibration(EPageId id);

// The page's document as the library carries it.
QJsonObject TemplatePage(EPageId id);
QJsonObject PatchedPage(EPageId id);

// As the page packages it before anybody has edited it.
QJsonObject PackagedPage(EPageId id, const QJsonObject &document);

// The patch laid over the value (RFC 7386): objects key by key, null removes, all else replaces.
QJsonValue Merged(const QJsonValue &value, const QJsonValue &patch);
