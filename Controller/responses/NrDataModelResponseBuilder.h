// Turns result and calibration records of the target into values inside a page's document, where
// the page's widgets find them; no page knows a record.
//
// Only the sections that show something are written, response or data: trait.defaultValue of
// members, captions of gain rows, the rows of row tables. A write to a path that the document lacks
// changes nothing and is a line on the debug log; of a calibration record it is also a message in
// the document's integrity record and a critical log line. What went wrong at the target is not
// told in the document beyond the words in the cells; the caller reports it. Powers, gains and
// losses are texts in dBm and dB. A number that a target answers outside its table's room is held
// to that room. No state; any thread that owns the document. Without gains given, path loss asks
// the cached capability for the supported ones, so it runs under the core's lock then.
//
//   builder.UpdateMixRxResultV7(document, report, status == 0);
#pragma once

#include <string>

#include <QJsonObject>

#include "Operations/calibration/CalRecords.h"
#include "Operations/capability/TargetCapability.h"
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

    // The document, as text, with a calibration record in it: of path loss what the page's power
    // mode and, for type 2, its path, gain mode and subband select. Without the supported gains the
    // losses stay as they were in the document.
    std::string GetAptDataModelV7(QJsonObject document, SAptRouteBwRecord record) const;
    std::string GetType1PathLossDataModelV7(QJsonObject document,
                                            SMMType1PathlossByRouteV7 record) const;
    std::string GetType2PathLossDataModelV7(QJsonObject document,
                                            SMMType2PathlossByRouteV7 record) const;
    // gains: the supported ones of the power mode that the document shows; null: unknown.
    std::string ShowType1PathLoss(QJsonObject document, SMMType1PathlossByRouteV7 record,
                                  const SMMRfRxGainInfoV7 *gains) const;
    std::string ShowType2PathLoss(QJsonObject document, SMMType2PathlossByRouteV7 record,
                                  const SMMRfRxGainInfoV7 *gains) const;

private:
    const SMMRfRxGainInfoV7 *GainsFor(const QJsonObject &document) const;

    CTargetCapability m_target;
};
