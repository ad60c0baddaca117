// The path loss record that a packaged page selects, between the item's memory and the page's
// document. There is a record for every route number and type.
//
// The rows of the table of calibration items (core/CalItemTable.cpp) call these, under the lock of
// the item's records.
//
//   StorePathLossDocument(item, document);
#pragma once

#include <optional>

#include <QJsonObject>

#include "Controller/calibration/LossConfig.h"
#include "Operations/calibration/CalState.h"
#include "Operations/calibration/MultiRatPathLossV7.h"

// The name of that record; the route table may lack it.
SCalName SelectedPathLossRecord(const QJsonObject &document);
// The document with the record in it.
std::optional<QJsonObject> ShowPathLossDocument(const CMultiRatPathLossV7 &item,
                                                const QJsonObject &document,
                                                const SSupportedGains &gains);
// Takes what the page shows into the record. A record that was not valid stays so.
void StorePathLossDocument(CMultiRatPathLossV7 &item, const QJsonObject &document);
