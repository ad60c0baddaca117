// Writes a trace: the form of docs/trace-format.md. A call is a line at its begin and one at its end.
//
//   CTraceWriter writer({.path = "run.jsonl", .who = "VondTap"}, header);
//   CTraceWriter::Line line = writer.Begin({.function = &function, .handle = 1, .request = {&command, 40}});
//   ... the call ...
//   writer.End(std::move(line), {.result = result, .text = "Success", .durationNs = 4000});
//
// All functions may be called from any thread, and from a child after a fork; none throws. Bytes are read
// where they lie: those of the request by Begin, before the call may change them. A line without its End
// is a call that did not come back. Failures: see TraceFile.h. Notes and texts may be any bytes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "Trace/lines/LineBuffers.h"
#include "Trace/lines/TraceFile.h"
#include "Trace/lines/TraceHeader.h"
#include "Trace/lines/TraceLines.h"

struct STraceTarget
{
    std::string path = {};  // empty: nothing is written
    std::string who = {};   // in front of what is said about failures
};

class CTraceWriter
{
public:
    // The first half of a call's last line; null where nothing is written.
    using Line = std::unique_ptr<CLineBuffer>;

    // An empty time in the header is now.
    CTraceWriter(const STraceTarget &target, const STraceHeader &header) noexcept;

    bool IsOpen() const { return m_file.IsOpen(); }
    Line Begin(const STraceBegin &begin) noexcept;
    void End(Line line, const STraceEnd &end) noexcept;
    void Note(std::string_view text) noexcept;

private:
    void WriteHeader(STraceHeader header);

    CTraceFile m_file;
    CLineBuffers m_buffers;
};
