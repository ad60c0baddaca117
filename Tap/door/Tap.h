// What the environment asks of the tap, and what becomes of a call then.
//
//   VOND_TAP=record   the call goes on to the pair and is written to VOND_TAP_FILE
//   VOND_TAP=replay   a trace answers (Tap/replay); VOND_TAP_OUT, if set, has what was asked and answered
//   unset             the call goes on
//
// The environment is read at the first call or note; then the trace is opened, too. The object is made
// then and never destroyed, as a thread may be in a call while the process ends. Any thread; a child of a
// fork goes on with the parent's trace. What can't be done costs a line on the standard error, and the
// calls go on without.
//
//   if (TapMode() == ETapMode::Pass)
//       return next(h, t);
//   return CTap::Instance().Run(call, [&] { return SOutcome{.result = next(h, t)}; }).result;
#pragma once

#include <atomic>
#include <memory>
#include <string_view>

#include "Tap/door/ResultTexts.h"
#include "Tap/replay/Replay.h"
#include "Trace/lines/TraceWriter.h"

enum class ETapMode
{
    Unknown,  // nobody has called yet
    Pass,
    Record,
    Replay
};

extern std::atomic<ETapMode> g_tapMode;

ETapMode ReadTapMode();

inline ETapMode TapMode()
{
    const ETapMode mode = g_tapMode.load(std::memory_order_acquire);
    return mode != ETapMode::Unknown ? mode : ReadTapMode();
}

// What a call came to: a result or a text, as the function is.
struct SOutcome
{
    int32_t result = 0;
    const char *text = nullptr;
};

class CTap
{
public:
    // Record and Replay alone.
    static CTap &Instance();

    // Next is called unless a trace answers. It may throw; then the call has no end in the trace.
    template <class Next>
    SOutcome Run(const SAskedCall &asked, const Next &next)
    {
        const SAskedCall call = Readable(asked);
        CTraceWriter::Line line = Begin(call);
        const uint64_t startNs = Now();
        const SOutcome outcome = m_replay != nullptr ? Replayed(call) : next();
        if (line != nullptr)
            End(std::move(line), call, outcome, Now() - startNs);
        return outcome;
    }
    void Note(std::string_view text) { m_writer.Note(text); }

private:
    explicit CTap(ETapMode mode);

    static uint64_t Now();
    // Without what can't be read of the request; for a replay, which writes them, of the answers, too.
    SAskedCall Readable(SAskedCall call) const;
    CTraceWriter::Line Begin(const SAskedCall &call);
    void End(CTraceWriter::Line line, const SAskedCall &call, const SOutcome &outcome,
             uint64_t durationNs) noexcept;
    SOutcome Replayed(const SAskedCall &call) const;
    std::string TextOf(const SAskedCall &call, int32_t result);

    std::unique_ptr<const CReplay> m_replay;  // null: record
    CTraceWriter m_writer;
    CResultTexts m_texts;
};
