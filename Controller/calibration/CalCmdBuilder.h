// Takes what a packaged calibration page shows back into the record that it was shown from.
//
// A function takes the record as it is and gives it back with what the page shows; the rest of it
// stays, and so does a field whose member is missing in the document. Members' options and limits
// are asked as well, so as to leave alone a value that a page has merely shown (CalEditor.h). Which
// member fills which field stands in CalWalks.cpp; the record headers give each field's unit.
//
// No state, no failure outward; any thread.
//
//   const SAptRouteBwRecord record = CCalCmdBuilder().GetAptCmdV7(document, shown);
#pragma once

#include <QJsonObject>

#include "Operations/calibration/CalRecords.h"

class CCalCmdBuilder
{
public:
    SAptRouteBwRecord GetAptCmdV7(QJsonObject document, SAptRouteBwRecord record) const;
    // Stores the losses of the page's power mode; those of the other mode stay.
    SMMType1PathlossByRouteV7 GetType1PathLossCmdV7(const QJsonObject &document,
                                                    SMMType1PathlossByRouteV7 record) const;
    // Stores the losses of the page's power mode, path, gain mode and subband.
    SMMType2PathlossByRouteV7 GetType2PathLossCmdV7(const QJsonObject &document,
                                                    SMMType2PathlossByRouteV7 record) const;
};
