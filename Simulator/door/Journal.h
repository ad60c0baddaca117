// The journal: every call in the order in which the calls ended, in memory and, when
// VOND_SIM_JOURNAL names a file, as a trace (docs/trace-format.md). All functions may be called from
// any thread.
//
// The trace tells a call at its begin, too. It has the caller's answer record as it lies there when the
// call ends; in memory are only answers that are the target's. Clearing the journal leaves the trace as it
// is. Memory is bounded, so that a run may last for days: beyond 64 MiB the oldest calls go, while the
// numbers of the others stay. The trace keeps everything.
//
// Calls that have begun and not ended are kept beside it.
//
//   SJournalBegin begin = journal.Begin({.function = &function, .request = {&command, 40}});
//   journal.Append(std::move(entry), std::move(begin), {&answer, 8});
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

#include "Simulator/VondSim.h"
#include "Trace/dictionary/Functions.h"
#include "Trace/lines/TraceWriter.h"

struct SJournalEntry
{
    const SFunction *function = nullptr;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    int32_t result = 0;
    uint32_t status = 0;
    uint64_t durationNs = 0;
    std::vector<uint8_t> request;
    std::vector<uint8_t> answer;
    SVondSimCallTime time = {};  // set by the journal
};

// A call that has begun: it goes back to the journal with its end.
struct SJournalBegin
{
    CTraceWriter::Line line;
    SVondSimCallTime time = {};
};

class CJournal
{
public:
    // An empty path: no trace. A file that cannot be written costs one line on stderr.
    explicit CJournal(const std::string &path);

    SJournalBegin Begin(const STraceBegin &begin);
    void Append(SJournalEntry entry, SJournalBegin begin, const STraceView &answer);
    // Leaves the open calls as they are.
    void Clear();
    // Calls since the last clear, those that have gone too.
    uint32_t Count() const;
    // False behind the last entry, and for one that has gone.
    bool Get(uint32_t index, SVondSimCall &call) const;
    // Of as many calls as there are from there on, at most that many; returns how many.
    uint32_t GetMany(uint32_t index, uint32_t most, SVondSimCall *calls,
                     SVondSimCallTime *times) const;
    bool GetTime(uint32_t index, SVondSimCallTime &time) const;
    std::vector<SVondSimOpenCall> OpenCalls() const;
    // Copies at most size bytes of the entry's request or answer; returns the full length.
    uint32_t Copy(uint32_t index, std::vector<uint8_t> SJournalEntry::*part, void *bytes,
                  uint32_t size) const;

private:
    // Null where Get is false.
    const SJournalEntry *Find(uint32_t index) const;

    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    const std::chrono::system_clock::time_point m_startOfWall = std::chrono::system_clock::now();
    mutable std::mutex m_mutex;
    std::deque<SJournalEntry> m_entries;
    uint32_t m_gone = 0;      // entries dropped from the front
    std::size_t m_bytes = 0;  // of the entries in memory
    uint64_t m_begun = 0;
    std::vector<SVondSimOpenCall> m_open;
    CTraceWriter m_writer;
};
