// Single tone TX: keeps one unmodulated tone on until a stop, and reads the power detector.
//
// Success of a start means started; the target goes on by itself. Contract of codes, text and
// thread: IGeneralOperation.
//
//   CMultiRatSingleToneTxV7 singleTone;
//   int16_t power = 0;
//   if (singleTone.GetPdValue(1, &power) == 0)
//       ... power / 256.0, dBm
#pragma once

#include "Operations/GeneralOperation.h"
#include "Vond/VondCommandRecords.h"

class CMultiRatSingleToneTxV7 : public IGeneralOperation
{
public:
    uint32_t RunSingleTone(const SMMSingleToneCmdV7 *command);
    // kind 1: NR. The value is dBm in 1/256 dB; a failure leaves it as it was.
    uint32_t GetPdValue(uint32_t kind, int16_t *value);
};
