// What the flash holds, as VondSim.h tells it. No lock: the owner keeps calls apart.
#pragma once

#include "Simulator/VondSim.h"
#include "Simulator/flash/Flash.h"

// False behind the last.
bool TellFlashItem(const SProfile &profile, CFlash &flash, uint32_t index, SVondSimFlashItem &item);
bool TellFlashRecord(const SProfile &profile, CFlash &flash, uint32_t index,
                     SVondSimFlashRecord &record);
uint32_t FlashRecordCount(const SProfile &profile, CFlash &flash);
