// Holds numbers of an answer that point into a table to that table, so that no reader behind the
// operations has to distrust them.
//
// Only counts, indexes and layout words are touched; readings and frequencies stay as the target
// gave them. A number beyond its table becomes the table's last entry. No state, any thread.
//
//   NRfTestResult_GetMixRxReportV7 report = ...;   // a count of 12
//   HoldToRoom(report);                            // 10
#pragma once

#include "Vond/VondResultRecords.h"

void HoldToRoom(NRfTestResult_GetMixRxReportV7 &report);
// A layout word that is not 1 means the layout of one path, and becomes 0.
void HoldToRoom(SMMGainSearchCnfV7 &result);
// The answer does not tell its layout: singlePath is the command's word.
void HoldToRoom(SMMRssiCnfV7 &result, bool singlePath);
