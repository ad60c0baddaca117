#include "Trace/lines/CallLines.h"

#include <limits>
#include <stdexcept>
#include <string>

namespace {

constexpr uint64_t kAnyNumber = std::numeric_limits<uint64_t>::max();
constexpr uint64_t kAnyWord = std::numeric_limits<uint32_t>::max();
constexpr uint64_t kTraceVersion = 1;

const SFunction *FunctionIn(const CLineObject &line)
{
    const std::string &name = line.Text("function");
    const SFunction *const function = FindFunction(name);
    if (function == nullptr)
        throw std::runtime_error("\"function\" is none of the pair's: " + name.substr(0, 80));
    return function;
}

}  // namespace

STraceHeader HeaderOfLine(const CLineObject &line)
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

STraceCall CallOfBegin(const CLineObject &line)
{
    STraceCall call;
    call.index = line.Unsigned("begin", kAnyNumber);
    call.function = FunctionIn(line);
    call.thread = line.Unsigned("thread", kAnyNumber);
    call.process = line.Unsigned("pid", kAnyNumber);
    call.startNs = line.Unsigned("startNs", kAnyNumber);
    call.isEnded = false;
    return call;
}

uint64_t IndexOfEnd(const CLineObject &line)
{
    return line.Unsigned("index", kAnyNumber);
}

void EndCall(const CLineObject &line, STraceCall &call)
{
    if (FunctionIn(line) != call.function)
        throw std::runtime_error("ends call " + std::to_string(call.index) + ", which began as " +
                                 std::string(call.function->name));
    call.handle = static_cast<uint32_t>(line.Unsigned("handle", kAnyWord));
    call.timeoutMs = static_cast<uint32_t>(line.Unsigned("timeout", kAnyWord));
    call.request = line.Bytes("request");
    call.answer = line.Bytes("answer");
    call.result = static_cast<int32_t>(line.Signed("result", std::numeric_limits<int32_t>::min(),
                                                   std::numeric_limits<int32_t>::max()));
    call.text = line.Text("text");
    call.status = static_cast<uint32_t>(line.Unsigned("status", kAnyWord));
    call.durationNs = line.Unsigned("durationNs", kAnyNumber);
    call.isEnded = true;
}
