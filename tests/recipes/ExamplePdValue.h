// Example operation: one reading of the power detector.
//
// The reading is in dBm, 1/256 dB. It fails while the DUT transmits nothing; the value stays as it
// was then. Contract of codes, text and thread: IGeneralOperation.
//
//   CExamplePdValue pdValue;
//   int16_t value = 0;
//   const uint32_t status = pdValue.Read(1, value);
#pragma once

#include "Operations/GeneralOperation.h"

class CExamplePdValue : public IGeneralOperation
{
public:
    uint32_t Read(uint32_t kind, int16_t &value);
};
