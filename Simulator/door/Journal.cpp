#include "Simulator/door/Journal.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include <unistd.h>

#include "Simulator/basis/Results.h"

namespace {

constexpr std::size_t kMostBytes = 64 * 1024 * 1024;

std::size_t BytesOf(const SJournalEntry &entry)
{
    return sizeof(entry) + entry.request.size() + entry.answer.size();
}

bool HasResult(const SFunction &function)
{
    return function.kind != EFunctionKind::Library;
}

SVondSimCall CallOf(const SJournalEntry &entry)
{
    SVondSimCall call = {};
    entry.function->name.copy(call.function, sizeof(call.function) - 1);
    call.handle = entry.handle;
    call.timeoutMs = entry.timeoutMs;
    call.result = entry.result;
    call.status = entry.status;
    call.durationNs = entry.durationNs;
    call.requestSize = static_cast<uint32_t>(entry.request.size());
    call.answerSize = static_cast<uint32_t>(entry.answer.size());
    return call;
}

}  // namespace

CJournal::CJournal(const std::string &path)
    : m_writer({.path = path, .who = "VondSim"},
               path.empty() ? STraceHeader() : HeaderOfThePair(QUORLIN_VERSION))
{
}

SJournalBegin CJournal::Begin(const STraceBegin &begin)
{
    using namespace std::chrono;
    SJournalBegin begun;
    begun.line = m_writer.Begin(begin);
    const nanoseconds start = steady_clock::now() - m_start;
    const auto wall = duration_cast<milliseconds>((m_startOfWall + start).time_since_epoch());
    begun.time.startNs = static_cast<uint64_t>(start.count());
    begun.time.startUnixMs = wall.count();
    begun.time.thread = static_cast<uint64_t>(gettid());
    SVondSimOpenCall open = {};
    begin.function->name.copy(open.function, sizeof(open.function) - 1);
    open.handle = begin.handle;
    open.timeoutMs = begin.timeoutMs;
    const std::lock_guard<std::mutex> lock(m_mutex);
    begun.time.number = m_begun++;
    open.time = begun.time;
    m_open.push_back(open);
    return begun;
}

void CJournal::Append(SJournalEntry entry, SJournalBegin begin, const STraceView &answer)
{
    entry.time = begin.time;
    m_writer.End(std::move(begin.line),
                 {.answer = answer,
                  .result = entry.result,
                  .text = HasResult(*entry.function) ? ResultText(entry.result) : "",
                  .status = entry.status,
                  .durationNs = entry.durationNs});
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::erase_if(m_open, [&](const SVondSimOpenCall &open) {
        return open.time.number == begin.time.number;
    });
    m_bytes += BytesOf(entry);
    m_entries.push_back(std::move(entry));
    while (m_bytes > kMostBytes) {
        m_bytes -= BytesOf(m_entries.front());
        m_entries.pop_front();
        ++m_gone;
    }
}

void CJournal::Clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.clear();
    m_gone = 0;
    m_bytes = 0;
}

uint32_t CJournal::Count() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_gone + static_cast<uint32_t>(m_entries.size());
}

const SJournalEntry *CJournal::Find(uint32_t index) const
{
    const uint32_t place = index - m_gone;
    return index >= m_gone && place < m_entries.size() ? &m_entries[place] : nullptr;
}

bool CJournal::Get(uint32_t index, SVondSimCall &call) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const SJournalEntry *const entry = Find(index);
    if (entry == nullptr)
        return false;
    call = CallOf(*entry);
    return true;
}

uint32_t CJournal::GetMany(uint32_t index, uint32_t most, SVondSimCall *calls,
                           SVondSimCallTime *times) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    uint32_t count = 0;
    for (; count < most; ++count) {
        const SJournalEntry *const entry = Find(index + count);
        if (entry == nullptr)
            break;
        calls[count] = CallOf(*entry);
        times[count] = entry->time;
    }
    return count;
}

bool CJournal::GetTime(uint32_t index, SVondSimCallTime &time) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const SJournalEntry *const entry = Find(index);
    if (entry != nullptr)
        time = entry->time;
    return entry != nullptr;
}

std::vector<SVondSimOpenCall> CJournal::OpenCalls() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_open;
}

uint32_t CJournal::Copy(uint32_t index, std::vector<uint8_t> SJournalEntry::*part, void *bytes,
                        uint32_t size) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const SJournalEntry *const entry = Find(index);
    if (entry == nullptr)
        return 0;
    const std::vector<uint8_t> &source = entry->*part;
    const std::size_t count = std::min<std::size_t>(source.size(), size);
    if (bytes != nullptr && count > 0)
        std::memcpy(bytes, source.data(), count);
    return static_cast<uint32_t>(source.size());
}
