// Reads a trace, strictly: the first line that is not as docs/trace-format.md says ends the reading.
// Calls are joined from their begin and end lines.
//
//   const STrace trace = ReadTrace("run.jsonl", ECutLine::Refused);
//   trace.calls[0].function->name     // "VOND_QueryFunctionSupported_r"
//   trace.notes[0].before             // 0: the note stands before the first call
//
// A line has at most kLongestTraceLine bytes, and all together kLongestTrace (LineSource.h): the whole trace is
// held in memory, its records as bytes. A file above that is refused before it is read.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

#include "Trace/lines/TraceCall.h"
#include "Trace/lines/TraceHeader.h"

struct STraceNote
{
    std::string text;
    uint64_t startNs = 0;    // since the trace began
    std::size_t before = 0;  // stands before calls[before]; calls.size(): behind the last
};

struct STrace
{
    STraceHeader header;
    std::vector<STraceCall> calls;  // in the order of their begin lines
    std::vector<STraceNote> notes;  // in the order of the file
    bool isCut = false;             // the last line had no end, and was left out
};

// A last line without a line end: the writer was cut off in the middle of it.
enum class ECutLine
{
    Refused,
    LeftOut  // isCut tells
};

// what() is one line: "run.jsonl:12: "request" has an odd number of digits", or without a line where
// the file cannot be opened.
class CTraceError : public std::runtime_error
{
    using runtime_error::runtime_error;
};

// Throws CTraceError.
STrace ReadTrace(const std::string &path, ECutLine cut);
// The name stands in what is thrown.
STrace ReadTrace(std::istream &stream, const std::string &name, ECutLine cut);
