// The source that this session has: the trace under the tap, otherwise the journal of the simulated DUT,
// otherwise null. The DUT must outlive the source.
//
//     const std::unique_ptr<IDoorSource> source = MakeDoorSource(dut);
#pragma once

#include <memory>

#include "Host/door/DoorSource.h"

class CSimulatedDut;

std::unique_ptr<IDoorSource> MakeDoorSource(CSimulatedDut &dut);
