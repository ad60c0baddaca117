#include "Trace/lines/TraceWriter.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <utility>

#include <unistd.h>

namespace {

std::string Iso8601Now()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    const auto milliseconds =
        duration_cast<std::chrono::milliseconds>(now.time_since_epoch()) % 1000;
    std::tm utc = {};
    gmtime_r(&seconds, &utc);
    char day[32] = {};
    std::strftime(day, sizeof(day), "%Y-%m-%dT%H:%M:%S", &utc);
    char text[48] = {};
    std::snprintf(text, sizeof(text), "%s.%03dZ", day, static_cast<int>(milliseconds.count()));
    return text;
}

}  // namespace

// Memory may run out; then the line is not there.
CTraceWriter::CTraceWriter(const STraceTarget &target, const STraceHeader &header) noexcept
    : m_file(target.path, target.who)
{
    if (IsOpen())
        WriteHeader(header);
}

void CTraceWriter::WriteHeader(STraceHeader header)
{
    if (header.time.empty())
        header.time = Iso8601Now();
    CLineBuffer line;
    AppendHeaderLine(line, header);
    m_file.Append(line.Text());
}

CTraceWriter::Line CTraceWriter::Begin(const STraceBegin &begin) noexcept
try {
    if (!IsOpen())
        return nullptr;
    const uint64_t startNs = m_file.Clock();
    const uint64_t index = m_file.NextIndex();
    Line line = m_buffers.Take();
    AppendBeginLine(*line, {.index = index,
                            .function = begin.function,
                            .thread = static_cast<uint64_t>(gettid()),
                            .process = static_cast<uint64_t>(getpid()),
                            .startNs = startNs});
    m_file.Append(line->Text());
    line->Clear();
    AppendEndLineToRequest(*line, index, begin);
    return line;
} catch (...) {
    return nullptr;
}

void CTraceWriter::End(Line line, const STraceEnd &end) noexcept
try {
    if (line == nullptr)
        return;
    AppendEndLineFromAnswer(*line, end);
    m_file.Append(line->Text());
    m_buffers.GiveBack(std::move(line));
} catch (...) {
}

void CTraceWriter::Note(std::string_view text) noexcept
try {
    if (!IsOpen())
        return;
    const uint64_t startNs = m_file.Clock();
    Line line = m_buffers.Take();
    AppendNoteLine(*line, text, startNs);
    m_file.Append(line->Text());
    m_buffers.GiveBack(std::move(line));
} catch (...) {
}
