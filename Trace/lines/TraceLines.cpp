#include "Trace/lines/TraceLines.h"

namespace {

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

void AppendHeaderLine(CLineBuffer &line, const STraceHeader &header)
{
    line.Append("{\"vondTrace\":1");
    for (const STraceHeaderKey &row : kTraceHeaderKeys)
        line.Append(",\"").Append(row.key).Append("\":").AppendJson(header.*row.value);
    line.Append("}\n");
}

void AppendBeginLine(CLineBuffer &line, const SBeginLine &begin)
{
    line.Append("{\"begin\":").AppendNumber(begin.index);
    line.Append(",\"function\":\"").Append(begin.function->name);
    line.Append("\",\"thread\":").AppendNumber(begin.thread);
    line.Append(",\"pid\":").AppendNumber(begin.process);
    line.Append(",\"startNs\":").AppendNumber(begin.startNs).Append("}\n");
}

void AppendEndLineToRequest(CLineBuffer &line, uint64_t index, const STraceBegin &begin)
{
    line.Append("{\"index\":").AppendNumber(index);
    line.Append(",\"function\":\"").Append(begin.function->name);
    line.Append("\",\"handle\":").AppendNumber(begin.handle);
    line.Append(",\"timeout\":").AppendNumber(begin.timeoutMs);
    line.Append(",\"request\":");
    AppendRecord(line, begin.request);
}

void AppendEndLineFromAnswer(CLineBuffer &line, const STraceEnd &end)
{
    line.Append(",\"answer\":");
    AppendRecord(line, end.answer);
    line.Append(",\"result\":").AppendNumber(end.result);
    line.Append(",\"text\":").AppendJson(end.text);
    line.Append(",\"status\":").AppendNumber(end.status);
    line.Append(",\"durationNs\":").AppendNumber(end.durationNs).Append("}\n");
}

void AppendNoteLine(CLineBuffer &line, std::string_view text, uint64_t startNs)
{
    line.Append("{\"note\":").AppendJson(text);
    line.Append(",\"startNs\":").AppendNumber(startNs).Append("}\n");
}
