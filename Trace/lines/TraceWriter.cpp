#include "Trace/lines/TraceWriter.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <span>
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

void AppendRecord(CLineBuffer &line, const STraceView &record)
{
    if (record.data == nullptr) {
        line.Append("null");
        return;
    }
    line.Append("\"");
    line.AppendHex({static_cast<const uint8_t *>(record.data), record.size});
    line.Append("\"");
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
    line.Append("{\"vondTrace\":1");
    for (const STraceHeaderKey &row : kTraceHeaderKeys)
        line.Append(",\"").Append(row.key).Append("\":").AppendJson(header.*row.value);
    m_file.Append(line.Append("}\n").Text());
}

CTraceWriter::Line CTraceWriter::Begin(const STraceBegin &begin) noexcept
try {
    if (!IsOpen())
        return nullptr;
    const uint64_t startNs = m_file.Clock();
    const uint64_t index = m_file.NextIndex();
    Line line = m_buffers.Take();
    line->Append("{\"begin\":").AppendNumber(index);
    line->Append(",\"function\":\"").Append(begin.function->name);
    line->Append("\",\"thread\":").AppendNumber(gettid());
    line->Append(",\"pid\":").AppendNumber(getpid());
    line->Append(",\"startNs\":").AppendNumber(startNs).Append("}\n");
    m_file.Append(line->Text());

    line->Clear();
    line->Append("{\"index\":").AppendNumber(index);
    line->Append(",\"function\":\"").Append(begin.function->name);
    line->Append("\",\"handle\":").AppendNumber(begin.handle);
    line->Append(",\"timeout\":").AppendNumber(begin.timeoutMs);
    line->Append(",\"request\":");
    AppendRecord(*line, begin.request);
    return line;
} catch (...) {
    return nullptr;
}

void CTraceWriter::End(Line line, const STraceEnd &end) noexcept
try {
    if (line == nullptr)
        return;
    line->Append(",\"answer\":");
    AppendRecord(*line, end.answer);
    line->Append(",\"result\":").AppendNumber(end.result);
    line->Append(",\"text\":").AppendJson(end.text);
    line->Append(",\"status\":").AppendNumber(end.status);
    line->Append(",\"durationNs\":").AppendNumber(end.durationNs).Append("}\n");
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
    line->Append("{\"note\":").AppendJson(text);
    line->Append(",\"startNs\":").AppendNumber(startNs).Append("}\n");
    m_file.Append(line->Text());
    m_buffers.GiveBack(std::move(line));
} catch (...) {
}
