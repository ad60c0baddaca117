// RSSI: the gains that suit the chosen gain modes, and the signal strength at up to five
// frequencies.
//
// Neither leaves anything running. The commands come by value, since each step of the page builds
// its own. The caller clears an RSSI answer before the call. Both limit the gain indexes, G and g
// of an answer to the sizes of their tables, also after a failed call. Contract of codes, text and
// thread: IGeneralOperation.
//
//   CMultiRatRssiV7 rssi;
//   SMMGainSearchCnfV7 gains = {};
//   if (rssi.RunGainSearch(command, &gains) == 0)
//       ... gains.adviseDlPower / 32.0, dBm
#pragma once

#include "Operations/GeneralOperation.h"
#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"

class CMultiRatRssiV7 : public IGeneralOperation
{
public:
    uint32_t RunGainSearch(SMMGainSearchCmdV7 command, SMMGainSearchCnfV7 *result);
    uint32_t RunRssi(SMMRssiCmdV7 command, SMMRssiCnfV7 *result);
};
