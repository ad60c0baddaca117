// The lines of a trace, appended to a buffer: the form of docs/trace-format.md.
//
//   CLineBuffer line;
//   AppendHeaderLine(line, header);
//   AppendBeginLine(line, {.index = 0, .function = &function, .thread = 1, .process = 1, .startNs = 0});
//
// The line of a call's end is made in two halves, since the bytes of the request are read before the call
// and those of the answer behind it. Throws std::bad_alloc.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Trace/dictionary/Functions.h"
#include "Trace/lines/LineBuffer.h"
#include "Trace/lines/TraceHeader.h"

// Bytes of a record as the caller has them. Null: a null pointer, or a function without such a record.
struct STraceView
{
    const void *data = nullptr;
    std::size_t size = 0;
};

struct STraceBegin
{
    const SFunction *function = nullptr;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    STraceView request = {};
};

struct STraceEnd
{
    STraceView answer = {};
    int32_t result = 0;
    std::string_view text = {};  // of the result
    uint32_t status = 0;
    uint64_t durationNs = 0;
};

struct SBeginLine
{
    uint64_t index = 0;
    const SFunction *function = nullptr;
    uint64_t thread = 0;
    uint64_t process = 0;
    uint64_t startNs = 0;
};

void AppendHeaderLine(CLineBuffer &line, const STraceHeader &header);
void AppendBeginLine(CLineBuffer &line, const SBeginLine &begin);
void AppendEndLineToRequest(CLineBuffer &line, uint64_t index, const STraceBegin &begin);
void AppendEndLineFromAnswer(CLineBuffer &line, const STraceEnd &end);
void AppendNoteLine(CLineBuffer &line, std::string_view text, uint64_t startNs);
