#include "Tap/replay/Replay.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <thread>
#include <utility>

#include <unistd.h>

#include "Tap/replay/NearestCall.h"
#include "Trace/lines/TraceReader.h"

namespace {

constexpr uint64_t kLongestWaitNs = 3'600'000'000'000;  // an hour: a trace may say anything

// One write, so that lines of several threads stay whole.
void Tell(const std::string &text)
{
    const std::string line = "Replay: " + text + '\n';
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
}

RequestView RequestOf(const SAskedCall &call)
{
    if (FunctionOf(call.function).request == nullptr)
        return std::string_view();
    if (call.request == nullptr)
        return std::nullopt;
    return std::string_view(static_cast<const char *>(call.request), call.requestSize);
}

std::string Unanswered(const CReplayCalls &calls, const SAskedCall &call, bool isStrict)
{
    const SFunction &function = FunctionOf(call.function);
    const RequestView request = RequestOf(call);
    const STraceCall *const next = isStrict ? calls.Next(call.function) : nullptr;
    std::string text = std::string(function.name) + ": no call like this in the trace; ";
    if (next != nullptr)
        text += "the next one, call " + std::to_string(next->index) + ", has " +
                Differences(function, request, *next);
    else if (isStrict && !calls.Different(call.function).empty())
        text += "all calls of that function have come";
    else
        text += NearestCall(function, request, calls.Different(call.function));
    if (calls.OpenCount(call.function) > 0)
        text += "; calls that had not come back: " + std::to_string(calls.OpenCount(call.function));
    return text;
}

const char *AnsweredText(const STraceCall &call)
{
    return call.answer ? reinterpret_cast<const char *>(call.answer->data()) : nullptr;
}

}  // namespace

CReplay::CReplay(const SReplayPlan &plan) : m_plan(plan)
{
    try {
        if (m_plan.trouble.empty())
            Put(ReadTrace(m_plan.file, ECutLine::Refused).calls);
    } catch (const std::exception &error) {
        m_plan.trouble = error.what();
    }
    if (!m_plan.trouble.empty())
        Tell("the trace cannot be used: " + m_plan.trouble);
}

CReplay::CReplay(const SReplayPlan &plan, std::vector<STraceCall> calls) : m_plan(plan)
{
    Put(std::move(calls));
}

void CReplay::Put(std::vector<STraceCall> calls)
{
    for (STraceCall &call : calls) {
        if (call.function->kind == EFunctionKind::Library && call.answer)
            call.answer->push_back('\0');
        if (call.isEnded && call.function->kind != EFunctionKind::Library)
            m_texts.try_emplace(call.result, call.text);
    }
    m_calls = std::make_unique<const CReplayCalls>(std::move(calls));
    for (const STraceCall &call : m_calls->All()) {
        int32_t result = 0;
        if (call.function->id != EFunction::GetErrorString || !call.answer || !call.request ||
            call.request->size() != sizeof(result))
            continue;
        std::memcpy(&result, call.request->data(), sizeof(result));
        m_texts[result] = AnsweredText(call);
    }
}

const STraceCall *CReplay::Take(const SAskedCall &call) const
{
    const RequestView request = RequestOf(call);
    return m_plan.isStrict ? m_calls->TakeStrict(call.function, request)
                           : m_calls->TakeLoose(call.function, request);
}

int32_t CReplay::Answer(const SAskedCall &call) const
{
    const Clock::time_point start = Clock::now();
    if (!m_calls)
        return kTraceUnusable;
    const STraceCall *const found = Take(call);
    if (found == nullptr) {
        Tell(Unanswered(*m_calls, call, m_plan.isStrict));
        return kNoCallLikeThis;
    }
    if (call.answer != nullptr && found->answer && !found->answer->empty())
        std::memcpy(call.answer, found->answer->data(),
                    std::min(call.answerSize, found->answer->size()));
    if (call.status != nullptr && found->function->status == EStatusPlace::Argument)
        *call.status = found->status;
    WaitFor(*found, start);
    return found->result;
}

void CReplay::WaitFor(const STraceCall &call, Clock::time_point start) const
{
    if (m_plan.isRealTime)
        std::this_thread::sleep_until(
            start + std::chrono::nanoseconds(std::min(call.durationNs, kLongestWaitNs)));
}

const char *CReplay::TextOf(int32_t result) const
{
    if (const char *text = ReplayText(result))
        return text;
    const auto found = m_texts.find(result);
    return found != m_texts.end() ? found->second.c_str() : nullptr;
}

const char *CReplay::AnswerText(const SAskedCall &call) const
{
    const Clock::time_point start = Clock::now();
    const char *known = nullptr;
    if (int32_t result = 0; call.function == EFunction::GetErrorString && call.request != nullptr &&
                            call.requestSize == sizeof(result)) {
        std::memcpy(&result, call.request, sizeof(result));
        if (const char *text = ReplayText(result))
            return text;
        known = TextOf(result);
    }
    if (!m_calls)
        return nullptr;
    if (const STraceCall *found = Take(call)) {
        WaitFor(*found, start);
        return AnsweredText(*found);
    }
    if (known == nullptr || m_plan.isStrict)
        Tell(Unanswered(*m_calls, call, m_plan.isStrict));
    return known;
}
