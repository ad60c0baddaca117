// The path loss record that a packaged page selects, between the item's memory and the page's
// document. There is a record for every route number and type.
//
// Under the lock of the item's records; the item is that of the page. Rows of the table of
// calibration items (core/CalItemTable.cpp) call these.
//
//   StorePathLossDocument(item, document);
#pragma once

#include <optional>
#include <string>

#include <QJsonObject>

#include "Controller/calibration/LossConfig.h"
#include "Operations/calibration/MultiRatPathLossV7.h"

// The document with the record in it.
std::optional<std::string> ShowPathLossDocument(const CMultiRatPathLossV7 &item,
                                                const QJsonObject &document,
                                                const SSupportedGains &gains);
// Takes what the page shows into the record. Makes it no more valid than it was.
void StorePathLossDocument(CMultiRatPathLossV7 &item, const QJsonObject &document);
