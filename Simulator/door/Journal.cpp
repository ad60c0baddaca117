#include "Simulator/door/Journal.h"

#include <algorithm>
#include <cstring>
#include <utility>

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

}  // namespace

CJournal::CJournal(const std::string &path)
    : m_writer({.path = path, .who = "VondSim"},
               path.empty() ? STraceHeader() : HeaderOfThePair(QUORLIN_VERSION))
{
}

void CJournal::Append(SJournalEntry entry, CTraceWriter::Line line, const STraceView &answer)
{
    m_writer.End(std::move(line),
                 {.answer = answer,
                  .result = entry.result,
                  .text = HasResult(*entry.function) ? ResultText(entry.result) : "",
                  .status = entry.status,
                  .durationNs = entry.durationNs});
    const std::lock_guard<std::mutex> lock(m_mutex);
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
    call = {};
    entry->function->name.copy(call.function, sizeof(call.function) - 1);
    call.handle = entry->handle;
    call.timeoutMs = entry->timeoutMs;
    call.result = entry->result;
    call.status = entry->status;
    call.durationNs = entry->durationNs;
    call.requestSize = static_cast<uint32_t>(entry->request.size());
    call.answerSize = static_cast<uint32_t>(entry->answer.size());
    return true;
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
