// The rules that a calibration request keeps, whatever the target has answered before: it has room
// for what it says, and nothing else in it. A broken rule ends the process.
#pragma once

#include "Vond/VondCalRecords.h"

void CheckRequest(const SMMGetCalDataReqV7 &request);
void CheckRequest(const SMMSetCalDataReqV7 &request);
