// What single lines of a trace say. Each throws std::runtime_error with the reason where a line is not as
// docs/trace-format.md has it.
//
//   const CLineObject line(text);
//   if (line.Has("begin"))
//       calls.push_back(CallOfBegin(line));     // open
//   else if (line.Has("index"))
//       EndCall(line, Find(calls, IndexOfEnd(line)));
#pragma once

#include "Trace/lines/LineObject.h"
#include "Trace/lines/TraceCall.h"
#include "Trace/lines/TraceHeader.h"

STraceHeader HeaderOfLine(const CLineObject &line);
STraceCall CallOfBegin(const CLineObject &line);
uint64_t IndexOfEnd(const CLineObject &line);
// The call has begun as the same function.
void EndCall(const CLineObject &line, STraceCall &call);
