// Which member of a calibration page stands for which field of a record.
//
// One walk for each kind of record, for both directions. The pages' own lists of groups and members
// stand in CalWalks.cpp. A path loss page shows one power mode, and of a type 2 route one path, one
// gain mode and one subband; a walk visits what the page shows and leaves the rest of the record
// alone. Pure functions, any thread.
//
//   CCalShow show(document);
//   MoveApt(show, record);
//   CCalFill fill(packagedDocument);
//   MoveType1(fill, record, {&SMMLossPair::hpm});
#pragma once

#include <QStringList>

#include "Controller/calibration/CalMove.h"
#include "Operations/calibration/CalRecords.h"

// What of a path loss record the page shows.
struct SLossView
{
    int16_t SMMLossPair::*half;  // by power mode
    int freqIdx = 0;             // the rest: type 2 alone
    int path = 0;
    int bigG = 0;               // gain mode G
    QStringList captions = {};  // by gain slot, type 1 alone; empty: they stay
    bool hasGains = true;       // false: the losses are passed over
};

void MoveApt(ICalMove &move, SAptRouteBwRecord &record);
void MoveType1(ICalMove &move, SMMType1PathlossByRouteV7 &record, const SLossView &view);
// The losses are left out when no record has the subband, path or gain mode.
void MoveType2(ICalMove &move, SMMType2PathlossByRouteV7 &record, const SLossView &view);
