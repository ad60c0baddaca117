// Calls of the door panel in words, and between their forms. Any thread.
//
//     DoorTime(call)     // "14:03:07.250"
//     DoorResult(call)   // "Timeout (7)"
#pragma once

#include <QString>

#include "Host/door/DoorCall.h"
#include "Trace/lines/TraceCall.h"

QString DoorTime(const SDoorCall &call);
// Empty while the call is open.
QString DoorDuration(const SDoorCall &call);
// With the target's own verdict, if it has one to tell.
QString DoorResult(const SDoorCall &call);
// "VOND_MMRf_ContRxV7_r"
QString DoorFunction(const SDoorCall &call);

// All but what the source knows of its records.
SDoorCall DoorCallOf(const STraceCall &call, int64_t beganUnixMs);
STraceCall CallWithoutRecords(const SDoorCall &call);
