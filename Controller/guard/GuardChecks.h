// What a guarded write looks at before it asks: values, routes, and which records were chosen.
//
// Pure functions, any thread. A text is a refusal for the user, with the first of what is wrong.
#pragma once

#include <QString>
#include <QStringList>

#include "Operations/calibration/CalBlockImage.h"
#include "Operations/calibration/CalRemarks.h"

class ICalPageLimits;

QString RecordText(const SCalBlockRecord &record);
// The records of an image that another one has, too, in the order of that one.
SCalBlockImage SameRecords(const SCalBlockImage &image, const SCalBlockImage &other);
// "a, b and 7 more".
QString FirstOf(const QStringList &names);

// One entry of a choice of records: "7", or "T2:7".
bool IsChosen(const QStringList &only, ECalRoute kind, const SCalPlace &place);
// Leaves the chosen records. Refused: an entry that chooses none.
QString KeepChosen(const QStringList &only, SCalBlockImage &wanted);

QString RefuseNoNumbers(const SCalMoveRemarks &remarks);
// Of the chosen records alone.
QString RefuseOtherRoutes(const SCalMoveRemarks &remarks, const QStringList &only);
// A value that would be new in flash and that no editor of the page can hold.
QString RefuseOddValues(const SCalImage &flash, const SCalImage &wanted, ICalPageLimits *limits);
// A record with more blocks than one transfer holds.
QString RefuseLongRecords(const SCalBlockImage &wanted);
