#include "Tap/replay/ReplayCalls.h"

#include <algorithm>
#include <functional>
#include <utility>

RequestView RequestOf(const STraceCall &call)
{
    // What such a call leaves open is not a difference.
    if (call.function->request == nullptr)
        return std::string_view();
    if (!call.request)
        return std::nullopt;
    return std::string_view(reinterpret_cast<const char *>(call.request->data()),
                            call.request->size());
}

std::size_t CReplayCalls::SKeyHash::operator()(const SKey &key) const
{
    constexpr std::size_t kSpread = 0x9e3779b97f4a7c15u;
    const std::size_t bytes = key.request ? std::hash<std::string_view>()(*key.request) : 1;
    return bytes ^ (static_cast<std::size_t>(key.function) + 1) * kSpread;
}

CReplayCalls::CReplayCalls(std::vector<STraceCall> calls) : m_calls(std::move(calls))
{
    for (const STraceCall &call : m_calls) {
        if (!call.isEnded)
            ++m_functions[static_cast<std::size_t>(call.function->id)].openCount;
    }
    std::erase_if(m_calls, [](const STraceCall &call) { return !call.isEnded; });
    for (std::size_t place = 0; place < m_calls.size(); ++place) {
        const STraceCall &call = m_calls[place];
        SOfFunction &ofFunction = m_functions[static_cast<std::size_t>(call.function->id)];
        ofFunction.turn.places.push_back(place);
        STurn &turn = m_requests[{call.function->id, RequestOf(call)}];
        if (turn.places.empty())
            ofFunction.different.push_back(place);
        turn.places.push_back(place);
    }
}

const STraceCall *CReplayCalls::TakeLoose(EFunction function, const RequestView &request) const
{
    const auto found = m_requests.find({function, request});
    if (found == m_requests.end())
        return nullptr;
    const Places &places = found->second.places;
    const std::size_t turn = found->second.next.fetch_add(1, std::memory_order_relaxed);
    return &m_calls[places[std::min(turn, places.size() - 1)]];
}

const STraceCall *CReplayCalls::TakeStrict(EFunction function, const RequestView &request) const
{
    const STurn &turn = Of(function).turn;
    std::size_t next = turn.next.load(std::memory_order_relaxed);
    while (next < turn.places.size()) {
        const STraceCall &call = m_calls[turn.places[next]];
        if (RequestOf(call) != request)
            return nullptr;
        if (turn.next.compare_exchange_weak(next, next + 1, std::memory_order_relaxed))
            return &call;
    }
    if (function == EFunction::GetMixRxReport && !turn.places.empty())
        return &m_calls[turn.places.back()];
    return nullptr;
}

const STraceCall *CReplayCalls::Next(EFunction function) const
{
    const STurn &turn = Of(function).turn;
    const std::size_t next = turn.next.load(std::memory_order_relaxed);
    return next < turn.places.size() ? &m_calls[turn.places[next]] : nullptr;
}

std::vector<const STraceCall *> CReplayCalls::Different(EFunction function) const
{
    std::vector<const STraceCall *> calls;
    for (const std::size_t place : Of(function).different)
        calls.push_back(&m_calls[place]);
    return calls;
}
