// Where the door panel has the calls from.
//
//     SDoorNews news;
//     source.Poll(news, std::chrono::steady_clock::now() + std::chrono::milliseconds(4));
//     model.Take(std::move(news));
//
// Nothing here waits for a call to the target.
#pragma once

#include <chrono>
#include <optional>

#include <QString>

#include "Host/door/DoorCall.h"
#include "Trace/lines/TraceCall.h"
#include "Trace/lines/TraceHeader.h"

using DoorClock = std::chrono::steady_clock;

class IDoorSource
{
public:
    virtual ~IDoorSource() = default;

    // At most until then, but for one call, which may be long.
    virtual void Poll(SDoorNews &news, DoorClock::time_point until) = 0;
    // Calls that stand before this place have gone.
    virtual uint64_t FirstPlace() = 0;
    // A call with its records; of an open one, what its begin tells. Nothing: it has gone. Any thread.
    virtual std::optional<STraceCall> Read(const SDoorCall &call) const = 0;
    // Of a trace that has these calls. Any thread, once calls are there.
    virtual STraceHeader Header() const = 0;
    // Where the calls come from, and why none come if so: a sentence or two.
    virtual QString About() const = 0;
};
