// Any bytes as a trace: it is read or refused in one line, and what was read can be compared.
#include <sstream>
#include <string>
#include <vector>

#include "Cli/trace/Pairing.h"
#include "Trace/lines/TraceReader.h"
#include "Trace/words/CallComparison.h"
#include "Trace/words/ShownRecord.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

const std::string kName = "t.jsonl";

std::optional<STrace> Read(const std::string &text, ECutLine cut)
{
    std::istringstream stream(text);
    try {
        return ReadTrace(stream, kName, cut);
    } catch (const CTraceError &error) {
        const std::string words = error.what();
        Require(words.starts_with(kName + ":"), "a failure names the file");
        Require(words.find('\n') == std::string::npos, "a failure is one line");
        Require(words.size() < 1000, "a failure is short");
        return std::nullopt;
    }
}

void CheckTrace(const STrace &trace)
{
    std::size_t before = 0;
    for (const STraceNote &note : trace.notes) {
        Require(note.before >= before && note.before <= trace.calls.size(),
                "notes stand between the calls, in their order");
        before = note.before;
    }
    std::vector<SPairingKey> keys;
    for (const STraceCall &call : trace.calls) {
        Require(call.function != nullptr, "a call has its function");
        Require(call.isEnded || (!call.request && !call.answer), "an open call has no records");
        Require(CallDifferences(call, call, {.isTimed = true}).empty(), "a call is like itself");
        if (call.request)
            ShownRequest(*call.function, *call.request);
        if (call.answer)
            ShownAnswer(*call.function, *call.answer,
                        call.request ? *call.request : std::vector<uint8_t>());
        keys.push_back({.function = static_cast<uint32_t>(call.function->id),
                        .request = static_cast<uint32_t>(call.handle)});
    }
    for (const SPairing &pair : PairCalls(keys, keys))
        Require(pair.one == pair.other, "calls pair with themselves");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::optional<STrace> strict = Read(text, ECutLine::Refused);
    const std::optional<STrace> lenient = Read(text, ECutLine::LeftOut);
    Require(!strict || lenient, "what is whole is taken in any case");
    Require(!strict || !strict->isCut, "what is whole is not cut");
    if (lenient)
        CheckTrace(*lenient);
    return 0;
}
