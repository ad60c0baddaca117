// The documents that the pages of a DUT start from, and what a page makes of them.
//
//   const QJsonObject document = PatchedPage(EPageId::ContRx);     // by the DUT that is plugged
//   const QJsonObject packaged = Packaged(document);
//   const QJsonObject altered = Merged(packaged, {{"modelName", 5}}).toObject();
#pragma once

#include <QJsonObject>

#include "Controller/PageTable.h"

// The pages that have a document.
constexpr EPageId kFuzzPages[] = {
    EPageId::Rssi,         EPageId::ContRx,        EPageId::RxPathLoss,
    EPageId::RsrpForce,    EPageId::RsrpNormal,    EPageId::SingleToneTx,
    EPageId::PuschTxForce, EPageId::PuschTxNormal, EPageId::AptProfile,
};

// An unknown name is the first of the pages.
EPageId PageOf(const QString &name);
// "cmdIf", or "calDataIf" of the two calibration pages.
QString RootOf(EPageId id);

// The page's document as the library carries it.
QJsonObject TemplatePage(EPageId id);
QJsonObject PatchedPage(EPageId id);

enum class EEditors
{
    None,      // each text comes back as it was given
    OfThePage  // a spin box stops at its limits, a combo box is empty for what it lacks
};

// With a memberValue in every group of scalars or columns: each member's default, in a column table
// one text a column. The selection of a calibration page stays as it is once it is made.
QJsonObject Packaged(QJsonObject document, EEditors editors = EEditors::None);

// The patch laid over the value (RFC 7386): objects key by key, null removes, all else replaces.
QJsonValue Merged(const QJsonValue &value, const QJsonValue &patch);
