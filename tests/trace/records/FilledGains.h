// What commands and results share: the gain block, and the RSSI command that its answer hangs on.
#pragma once

#include "Vond/VondGainRecords.h"
#include "tests/trace/records/RecordFiller.h"

// Under the name "gain.".
void FillGains(CRecordFiller &filler, UMMRssiGainV7 &gain, bool isSingle);

CRecordFiller FilledRssi(uint8_t singlePath);
