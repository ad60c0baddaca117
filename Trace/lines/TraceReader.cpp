#include "Trace/lines/TraceReader.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <unordered_map>
#include <utility>

#include "Trace/lines/CallLines.h"
#include "Trace/lines/LineObject.h"
#include "Trace/lines/LineSource.h"
#include "Trace/lines/PrintableText.h"

namespace {

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
                                     .startNs = line.Unsigned("startNs", UINT64_MAX),
                                     .before = m_trace.calls.size()});
        else
            throw std::runtime_error("has none of the keys \"begin\", \"index\" and \"note\"");
    }

private:
    void Begin(const CLineObject &line)
    {
        STraceCall call = CallOfBegin(line);
        if (!m_places.emplace(call.index, m_trace.calls.size()).second)
            throw std::runtime_error("begins call " + std::to_string(call.index) +
                                     " a second time");
        m_trace.calls.push_back(std::move(call));
    }

    void End(const CLineObject &line)
    {
        const uint64_t index = IndexOfEnd(line);
        const std::string name = "call " + std::to_string(index);
        const auto found = m_places.find(index);
        if (found == m_places.end())
            throw std::runtime_error("ends " + name + ", which has not begun");
        STraceCall &call = m_trace.calls[found->second];
        if (call.isEnded)
            throw std::runtime_error("ends " + name + " a second time");
        EndCall(line, call);
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
            trace.header = HeaderOfLine(line);
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
    const std::uintmax_t size = std::filesystem::file_size(path, ignored);
    if (!ignored && size > kLongestTrace)
        throw CTraceError(PrintableText(path) + ": has " + std::to_string(size >> 20) +
                          " MB, more than the " + std::to_string(kLongestTrace >> 20) +
                          " that are read into memory");
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw CTraceError(PrintableText(path) + ": " +
                          (errno != 0 ? std::strerror(errno) : "cannot be opened"));
    return ReadTrace(stream, path, cut);
}
