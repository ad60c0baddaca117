#include "Tap/door/Tap.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "Tap/door/CallerMemory.h"
#include "Tap/door/Complaint.h"
#include "Vond/VondCore.h"

std::atomic<ETapMode> g_tapMode = ETapMode::Unknown;

namespace {

std::string Variable(const char *name)
{
    const char *const value = std::getenv(name);
    return value != nullptr ? value : "";
}

ETapMode ModeOfTheEnvironment()
{
    const std::string mode = Variable("VOND_TAP");
    if (mode == "replay")
        return ETapMode::Replay;
    if (mode == "record" && !Variable("VOND_TAP_FILE").empty())
        return ETapMode::Record;
    if (mode == "record")
        Complain("VOND_TAP_FILE names no file; nothing is recorded");
    else if (!mode.empty())
        Complain("VOND_TAP is neither record nor replay, but '" + mode +
                 "'; all calls pass through");
    return ETapMode::Pass;
}

// A replay that writes over its own trace would lose both.
std::string ReplayOut()
{
    const std::string out = Variable("VOND_TAP_OUT");
    std::error_code error;
    if (out.empty() || !std::filesystem::equivalent(out, Variable("VOND_TAP_FILE"), error))
        return out;
    Complain("VOND_TAP_OUT is the trace that is played back; nothing is written");
    return {};
}

// Null where nothing can be read.
STraceView ReadableView(const void *data, std::size_t size)
{
    const std::size_t readable = ReadableSize(data, size);
    return {readable > 0 || size == 0 ? data : nullptr, readable};
}

uint32_t StatusOf(const SAskedCall &call)
{
    const void *place = nullptr;
    switch (FunctionOf(call.function).status) {
    case EStatusPlace::Argument:
        place = call.status;
        break;
    case EStatusPlace::Answer:
        static_assert(offsetof(SNrDlFreqCnfV7, status) == 0, "the status word stands in front");
        place = call.answer;
        break;
    case EStatusPlace::None:
        break;
    }
    uint32_t status = 0;
    if (ReadableSize(place, sizeof(status)) == sizeof(status))
        std::memcpy(&status, place, sizeof(status));
    return status;
}

STraceView AnswerOf(const SAskedCall &call, const SOutcome &outcome)
{
    if (FunctionOf(call.function).kind != EFunctionKind::Library)
        return ReadableView(call.answer, call.answerSize);
    return {outcome.text, outcome.text != nullptr ? std::strlen(outcome.text) : 0};
}

}  // namespace

ETapMode ReadTapMode()
{
    static const ETapMode mode = ModeOfTheEnvironment();
    g_tapMode.store(mode, std::memory_order_release);
    return mode;
}

CTap &CTap::Instance()
{
    static CTap *const instance = new CTap(TapMode());
    return *instance;
}

CTap::CTap(ETapMode mode)
    : m_replay(mode == ETapMode::Replay ? std::make_unique<const CReplay>(ReplayPlanOf(std::getenv))
                                        : nullptr),
      m_writer(
          {.path = m_replay != nullptr ? ReplayOut() : Variable("VOND_TAP_FILE"), .who = "VondTap"},
          HeaderOfThePair(QUORLIN_VERSION))
{
}

uint64_t CTap::Now()
{
    return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                     std::chrono::steady_clock::now().time_since_epoch())
                                     .count());
}

SAskedCall CTap::Readable(SAskedCall call) const
{
    const int error = errno;
    const STraceView request = ReadableView(call.request, call.requestSize);
    call.request = request.data;
    call.requestSize = request.size;
    if (m_replay != nullptr) {
        const STraceView answer = ReadableView(call.answer, call.answerSize);
        call.answer = answer.data != nullptr ? call.answer : nullptr;
        call.answerSize = answer.size;
        if (ReadableSize(call.status, sizeof(*call.status)) < sizeof(*call.status))
            call.status = nullptr;
    }
    errno = error;
    return call;
}

CTraceWriter::Line CTap::Begin(const SAskedCall &call)
{
    return m_writer.Begin({.function = &FunctionOf(call.function),
                           .handle = call.handle,
                           .timeoutMs = call.timeoutMs,
                           .request = {call.request, call.requestSize}});
}

// Nothing of the tap's own is to reach the caller: no exception, no errno.
void CTap::End(CTraceWriter::Line line, const SAskedCall &call, const SOutcome &outcome,
               uint64_t durationNs) noexcept
{
    const int error = errno;
    m_writer.End(std::move(line), {.answer = AnswerOf(call, outcome),
                                   .result = outcome.result,
                                   .text = TextOf(call, outcome.result),
                                   .status = StatusOf(call),
                                   .durationNs = durationNs});
    errno = error;
}

SOutcome CTap::Replayed(const SAskedCall &call) const
{
    if (FunctionOf(call.function).kind == EFunctionKind::Library)
        return {.text = m_replay->AnswerText(call)};
    return {.result = m_replay->Answer(call)};
}

// A function that returns a text has no result. The pair is not asked then, either: it might put the
// answer where the caller is about to read its own.
std::string CTap::TextOf(const SAskedCall &call, int32_t result)
{
    if (FunctionOf(call.function).kind == EFunctionKind::Library) {
        if (call.function == EFunction::GetErrorString)
            m_texts.Asked(*static_cast<const int32_t *>(call.request));
        return {};
    }
    if (m_replay == nullptr)
        return m_texts.Of(result);
    const char *const text = m_replay->TextOf(result);
    return text != nullptr ? text : "";
}
