// Writes a calibration record into a page's document, where the page's widgets find its values.
//
// The answer is the document: as text by the builder's named functions, as an object by the others.
// Of path loss it has what the page's power mode selects and, for type 2, its path, gain mode and
// subband. Losses, gains and offsets are texts in dB. A write
// to a path that the document lacks changes nothing; it is a message in the document's integrity
// record and a critical log line. Which field goes where stands in CalWalks.cpp.
//
// No state; any thread that owns the document. Without gains given, path loss asks the cached
// capability for the supported ones, so it runs under the core's lock then.
//
//   const QJsonObject shown = CCalResponseBuilder().ShowApt(document, record);
#pragma once

#include <string>

#include <QJsonObject>

#include "Operations/calibration/CalRecords.h"
#include "Operations/capability/TargetCapability.h"

class CCalResponseBuilder
{
public:
    std::string GetAptDataModelV7(QJsonObject document, SAptRouteBwRecord record) const;
    QJsonObject ShowApt(QJsonObject document, SAptRouteBwRecord record) const;
    // Without the supported gains the losses stay as they were in the document.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    std::string GetType1PathLossDataModelV7(QJsonObject document,
                                            SMMType1PathlossByRouteV7 record) const;
    std::string GetType2PathLossDataModelV7(QJsonObject document,
                                            SMMType2PathlossByRouteV7 record) const;
    // gains: the supported ones of the power mode that the document shows; null: unknown.
    QJsonObject ShowType1PathLoss(QJsonObject document, SMMType1PathlossByRouteV7 record,
                                  const SMMRfRxGainInfoV7 *gains) const;
    QJsonObject ShowType2PathLoss(QJsonObject document, SMMType2PathlossByRouteV7 record,
                                  const SMMRfRxGainInfoV7 *gains) const;

private:
    const SMMRfRxGainInfoV7 *GainsFor(const QJsonObject &document) const;

    CTargetCapability m_target;
};
