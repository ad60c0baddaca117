// The calibration functions: what the flash holds, one round of an upload, one of a download.
//
// A round that breaks the layout is refused by status 0 in the answer, with the reason in the text
// of each kind that broke it, and success as the result; a download then changes nothing. No locks;
// the file of the flash is written before a download is answered.
#pragma once

#include "Simulator/basis/Results.h"
#include "Simulator/faults/FlashFaults.h"
#include "Simulator/flash/Flash.h"

// What a download came to.
struct SFlashOutcome
{
    uint32_t blocks = 0;  // written as a whole
    bool isCut = false;
};

// One row for each row of the route tables, in their order. Radio kind 0 is the LTE side, of which
// the simulated DUT has nothing to tell.
SVerdict AnswerCalBlkInfo(const SProfile &profile, CFlash &flash, uint32_t radioKind,
                          SMMCalBlkInfoCnfV7 &answer);
void AnswerCalData(const SProfile &profile, CFlash &flash, const SMMGetCalDataReqV7 &request,
                   SMMGetCalDataCnfV7 &answer);
// Where the power is cut the answer stays as it is, and the flash is left as the cut has left it.
SFlashOutcome StoreCalData(const SProfile &profile, CFlash &flash,
                           const SMMSetCalDataReqV7 &request, SMMSetCalDataCnfV7 &answer,
                           const SFlashFaults &faults);
