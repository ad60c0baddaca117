// PUSCH TX: keeps the DUT's transmitter on until a stop, and tells the DL frequency that goes with
// an UL one.
//
// Success of a start means started; the target goes on by itself. GetDlFreq clears the record
// before the call, so a refusal leaves frequency 0. Both have a status word: a carrier that the
// target cannot map is a target failure with its own words. Contract of codes, text and thread:
// IGeneralOperation.
//
//   CNrPuschTxV7 puschTx;
//   SNrDlFreqCnfV7 downlink;
//   if (puschTx.GetDlFreq(&command, &downlink) == 0)
//       ... downlink.dlFrequency, kHz
#pragma once

#include "Operations/GeneralOperation.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

class CNrPuschTxV7 : public IGeneralOperation
{
public:
    uint32_t RunPuschTx(const SNrPuschTxCmdV7 *command);
    uint32_t GetDlFreq(const SNrDlFreqCmdV7 *command, SNrDlFreqCnfV7 *result);
};
