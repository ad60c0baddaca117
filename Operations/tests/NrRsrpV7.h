// RSRP: lets the DUT measure a cell until a stop, and fetches what it has measured.
//
// Success of a start means started; the target goes on by itself and keeps its last measurements
// for the next fetch. The caller clears a report before the fetch. A count above the ten rows of a
// report is limited to ten, also after a failed call. Contract of codes, text and thread:
// IGeneralOperation.
//
//   CNrRsrpV7 rsrp;
//   NRfTestResult_GetMixRxReportV7 report = {};
//   if (rsrp.GetMixRxReport(&report) == 0)
//       ... report.reportCount rows
#pragma once

#include "Operations/GeneralOperation.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

class CNrRsrpV7 : public IGeneralOperation
{
public:
    uint32_t RunRsrp(const SNrRsrpCmdV7 *command);
    uint32_t GetMixRxReport(NRfTestResult_GetMixRxReportV7 *report);
    // Block counts start again from 0.
    uint32_t ResetMixRxReport();
};
