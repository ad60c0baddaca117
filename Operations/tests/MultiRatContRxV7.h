// Continuous RX: keeps the DUT's receiver on at one frequency until a stop.
//
// Success means started; the target goes on by itself. Contract of codes, text and thread:
// IGeneralOperation.
//
//   CMultiRatContRxV7 contRx;
//   const uint32_t status = contRx.RunContRx(&command);
#pragma once

#include "Operations/GeneralOperation.h"
#include "Vond/VondCommandRecords.h"

class CMultiRatContRxV7 : public IGeneralOperation
{
public:
    uint32_t RunContRx(const SMMContRxCmdV7 *command);
};
