// The two stops: of the NR tests (PUSCH, RSRP) and of the multi-RAT ones (single tone, continuous
// RX).
//
// Contract of codes, text and thread: IGeneralOperation.
//
//   CMultiRatTestStopV7 stop;
//   stop.Stop(1);   // kind 1: NR
#pragma once

#include "Operations/GeneralOperation.h"

class CNrTestStop : public IGeneralOperation
{
public:
    uint32_t Stop();
};

class CMultiRatTestStopV7 : public IGeneralOperation
{
public:
    uint32_t Stop(uint32_t kind);
};
