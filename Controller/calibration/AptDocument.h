// The APT record that a packaged page selects, between the item's memory and the page's document.
//
// The rows of the table of calibration items (core/CalItemTable.cpp) call these, under the lock of
// the item's records.
//
//   if (const std::optional<QJsonObject> shown = ShowAptDocument(item, document, {}))
#pragma once

#include <optional>

#include <QJsonObject>

#include "Controller/calibration/LossConfig.h"
#include "Operations/calibration/CalState.h"
#include "Operations/calibration/MultiRatAptProfileV7.h"

// The document with the record in it; none: there is no such record.
// The name of that record; the route table may lack it.
SCalName SelectedAptRecord(const QJsonObject &document);
std::optional<QJsonObject> ShowAptDocument(const CMultiRatAptProfileV7 &item,
                                           const QJsonObject &document, const SSupportedGains &);
// Takes what the page shows into the record. A record that was not valid stays so.
void StoreAptDocument(CMultiRatAptProfileV7 &item, const QJsonObject &document);
