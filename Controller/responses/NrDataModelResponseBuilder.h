// Turns result records of the target into values inside a page's document, where the page's widgets
// find them; no page knows a record.
//
// Only the response section is written: trait.defaultValue of members, and the rows of row tables.
// A write to a path that the document lacks changes nothing and is a line on the debug log. What
// went wrong at the target is not told in the document beyond the words in the cells; the caller
// reports it. Powers and gains are texts in dBm and dB. A count that a target answers beyond its
// table's size is limited to that size. No state; any thread that owns the document. Calibration
// records have a builder of their own (CalResponseBuilder.h).
//
//   builder.UpdateMixRxResultV7(document, report, status == 0);
#pragma once

#include <QJsonObject>

#include "Vond/VondResultRecords.h"

class CNrDataModelResponseBuilder
{
public:
    // Appends the measurements of a report to the table of the page; a failed or empty fetch
    // appends a row that says so. Rows count on from fetch to fetch until they are cleaned.
    void UpdateMixRxResultV7(QJsonObject &document, const NRfTestResult_GetMixRxReportV7 &report,
                             bool success) const;
    void UpdateMixRxNormalResultV7(QJsonObject &document,
                                   const NRfTestResult_GetMixRxReportV7 &report,
                                   bool success) const;
    // Empties the tables of either RSRP page.
    void CleanMixRxReportV7(QJsonObject &document) const;

    // Shows the gains that a search has found and the power that it advises.
    void UpdateRssiGainResultV7(QJsonObject &document, SMMGainSearchCnfV7 result,
                                bool success) const;
    // Shows the measured rows of the paths that were asked for, and leaves the gains as they are.
    void UpdateRssiResultV7(QJsonObject &document, SMMRssiCnfV7 result, bool success) const;
};
