// The calls of a trace, found by what is asked.
//
// Two requests are the same when their bytes are; a null request equals a null one alone. Handle and
// timeout are not compared. A call that had not come back when the trace ended has no request on
// record: it is passed over.
//
// Calls are used up one by one. Any thread may ask; there is no lock, so a child of a fork may ask, too.
// A request is found by its hash.
//
//   const CReplayCalls calls(std::move(trace));
//   const STraceCall *next = calls.TakeLoose(EFunction::Rssi, request);   // null: no call like this
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Trace/lines/TraceCall.h"

// The bytes of a request; none: a null pointer.
using RequestView = std::optional<std::string_view>;

class CReplayCalls
{
public:
    // The calls in the order in which they began.
    explicit CReplayCalls(std::vector<STraceCall> calls);

    // The next unused call with that request, or else the last one with it.
    const STraceCall *TakeLoose(EFunction function, const RequestView &request) const;
    // The next call of the function, if it has that request; otherwise nothing is used up. Fetches of
    // the report beyond the trace get the last one.
    const STraceCall *TakeStrict(EFunction function, const RequestView &request) const;

    // Without using it up: what TakeStrict would look at. Null behind the last.
    const STraceCall *Next(EFunction function) const;
    // The first call with each request that the function was asked with.
    std::vector<const STraceCall *> Different(EFunction function) const;
    // How many calls of the function had not come back.
    std::size_t OpenCount(EFunction function) const { return Of(function).openCount; }
    // All calls that had come back.
    const std::vector<STraceCall> &All() const { return m_calls; }

private:
    using Places = std::vector<std::size_t>;

    // The calls that are taken in one order.
    struct STurn
    {
        Places places;  // in m_calls
        mutable std::atomic<std::size_t> next = 0;
    };

    struct SKey
    {
        EFunction function;
        RequestView request;

        bool operator==(const SKey &other) const = default;
    };

    struct SKeyHash
    {
        std::size_t operator()(const SKey &key) const;
    };

    struct SOfFunction
    {
        STurn turn;
        std::vector<std::size_t> different;
        std::size_t openCount = 0;
    };

    const SOfFunction &Of(EFunction function) const
    {
        return m_functions[static_cast<std::size_t>(function)];
    }

    std::vector<STraceCall> m_calls;
    std::array<SOfFunction, static_cast<std::size_t>(EFunction::Count)> m_functions;
    std::unordered_map<SKey, STurn, SKeyHash> m_requests;  // keys look into m_calls
};

// What a recorded call was asked with.
RequestView RequestOf(const STraceCall &call);
