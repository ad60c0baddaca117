#include "Trace/lines/TraceReader.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <unordered_map>
#include <utility>

#include "Trace/lines/LineObject.h"
#include "Trace/lines/LineSource.h"
#include "Trace/lines/PrintableText.h"

namespace {

constexpr uint64_t kAnyNumber = std::numeric_limits<uint64_t>::max();
constexpr uint64_t kAnyWord = std::numeric_limits<uint32_t>::max();
constexpr uint64_t kTraceVersion = 1;

STraceHeader HeaderOf(const CLineObject &line)
{
    if (!line.Has("vondTrace"))
        throw std::runtime_error("is no header of a trace: \"vondTrace\" is missing");
    const uint64_t version = line.Unsigned("vondTrace", kAnyNumber);
    if (version != kTraceVersion)
        throw std::runtime_error("\"vondTrace\" is " + std::to_string(version) +
                                 "; this program reads version 1");
    STraceHeader header;
    for (const STraceHeaderKey &row : kTraceHeaderKeys)
        header.*row.value = line.Text(row.key);
    return header;
}

const SFunction *FunctionIn(const CLineObject &line)
{
    const std::string &name = line.Text("function");
    const SFunction *const function = FindFunction(name);
    if (function == nullptr)
        throw std::runtime_error("\"function\" is none of the pair's: " + name.substr(0, 80));
    return function;
}

// The lines behind the header, as they come.
class CJoiner
{
public:
    explicit CJoiner(STrace &trace) : m_trace(trace) {}

    void Add(const CLineObject &line)
    {
        if (line.Has("begin"))
            Begin(line);
        else if (line.Has("index"))
            End(line);
        else if (line.Has("note"))
            m_trace.notes.push_back({.text = line.Text("note"),
                                     .startNs = line.Unsigned("startNs", kAnyNumber),
                                     .before = m_trace.calls.size()});
        else
            throw std::runtime_error("has none of the keys \"begin\", \"index\" and \"note\"");
    }

private:
    void Begin(const CLineObject &line)
    {
        STraceCall call;
        call.index = line.Unsigned("begin", kAnyNumber);
        call.function = FunctionIn(line);
        call.thread = line.Unsigned("thread", kAnyNumber);
        call.process = line.Unsigned("pid", kAnyNumber);
        call.startNs = line.Unsigned("startNs", kAnyNumber);
        call.isEnded = false;
        if (!m_places.emplace(call.index, m_trace.calls.size()).second)
            throw std::runtime_error("begins call " + std::to_string(call.index) +
                                     " a second time");
        m_trace.calls.push_back(std::move(call));
    }

    void End(const CLineObject &line)
    {
        const uint64_t index = line.Unsigned("index", kAnyNumber);
        const std::string name = "call " + std::to_string(index);
        const auto found = m_places.find(index);
        if (found == m_places.end())
            throw std::runtime_error("ends " + name + ", which has not begun");
        STraceCall &call = m_trace.calls[found->second];
        if (call.isEnded)
            throw std::runtime_error("ends " + name + " a second time");
        if (FunctionIn(line) != call.function)
            throw std::runtime_error("ends " + name + ", which began as " +
                                     std::string(call.function->name));
        call.handle = static_cast<uint32_t>(line.Unsigned("handle", kAnyWord));
        call.timeoutMs = static_cast<uint32_t>(line.Unsigned("timeout", kAnyWord));
        call.request = line.Bytes("request");
        call.answer = line.Bytes("answer");
        call.result = static_cast<int32_t>(line.Signed(
            "result", std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()));
        call.text = line.Text("text");
        call.status = static_cast<uint32_t>(line.Unsigned("status", kAnyWord));
        call.durationNs = line.Unsigned("durationNs", kAnyNumber);
        call.isEnded = true;
    }

    STrace &m_trace;
    std::unordered_map<uint64_t, std::size_t> m_places;  // in trace.calls, by index
};

STrace ReadLines(CLineSource &source, ECutLine cut)
{
    STrace trace;
    CJoiner joiner(trace);
    bool hasHeader = false;
    while (source.Next()) {
        if (!source.HasEnd() && (cut == ECutLine::Refused || !hasHeader))
            throw std::runtime_error("is cut: it has no line end");
        if (!source.HasEnd()) {
            trace.isCut = true;
            break;
        }
        const CLineObject line(source.Line());
        if (hasHeader)
            joiner.Add(line);
        else
            trace.header = HeaderOf(line);
        hasHeader = true;
    }
    if (!hasHeader)
        throw std::runtime_error("is no header of a trace: the file is empty");
    return trace;
}

}  // namespace

STrace ReadTrace(std::istream &stream, const std::string &name, ECutLine cut)
{
    CLineSource source(stream);
    try {
        return ReadLines(source, cut);
    } catch (const std::exception &error) {
        throw CTraceError(
            PrintableText(name + ":" + std::to_string(source.Number()) + ": " + error.what()));
    }
}

STrace ReadTrace(const std::string &path, ECutLine cut)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        throw CTraceError(PrintableText(path) + ": " + std::strerror(EISDIR));
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw CTraceError(PrintableText(path) + ": " +
                          (errno != 0 ? std::strerror(errno) : "cannot be opened"));
    return ReadTrace(stream, path, cut);
}
