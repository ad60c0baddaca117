#include "Host/door/JournalSource.h"

#include <algorithm>

#include <unistd.h>

#include <QDateTime>

#include "Host/door/DoorWords.h"
#include "Trace/words/CallText.h"

namespace {

constexpr uint32_t kCallsAtOnce = 256;   // between two looks at the clock
constexpr uint32_t kVerdictBytes = 256;  // of an answer: as far as its verdict is

void SetTime(SDoorCall &call, const SVondSimCallTime &time)
{
    call.number = time.number;
    call.startNs = time.startNs;
    call.startUnixMs = time.startUnixMs;
    call.thread = time.thread;
    call.process = static_cast<uint64_t>(getpid());
}

TraceBytes BytesOf(decltype(&VondSim_GetAnswer) copy, uint32_t index)
{
    std::vector<uint8_t> bytes(copy(index, nullptr, 0));
    if (bytes.empty())
        return std::nullopt;
    const uint32_t size = copy(index, bytes.data(), static_cast<uint32_t>(bytes.size()));
    bytes.resize(std::min<std::size_t>(size, bytes.size()));
    return bytes;
}

}  // namespace

bool CJournalSource::IsAnother(uint32_t count) const
{
    if (m_next == 0)
        return false;
    SVondSimCallTime time = {};
    // A call that has gone while there are later ones was dropped, not cleared.
    return count < m_next ||
           (m_dut->GetCallTime(m_next - 1, &time) == 0 && time.number != m_lastNumber);
}

// Open calls first: one that ends meanwhile is then among those that have ended.
void CJournalSource::Poll(SDoorNews &news, DoorClock::time_point until)
{
    const std::vector<SVondSimOpenCall> open = OpenCalls();
    const uint32_t count = m_dut->CallCount();
    if (IsAnother(count)) {
        news.isReset = true;
        m_first = 0;
        m_next = 0;
        m_toldOpen.clear();
    }
    TakeEnded(news, count, until);
    if (!news.hasMore)
        TakeOpen(news, open);
}

void CJournalSource::TakeEnded(SDoorNews &news, uint32_t count, DoorClock::time_point until)
{
    std::vector<SVondSimCall> rows(kCallsAtOnce);
    std::vector<SVondSimCallTime> times(kCallsAtOnce);
    while (m_next < count) {
        const uint32_t most = std::min(kCallsAtOnce, count - m_next);
        const uint32_t found = m_dut->GetCalls(m_next, most, rows.data(), times.data());
        for (uint32_t i = 0; i < found; ++i)
            TakeCall(news, m_next + i, rows[i], times[i]);
        m_next = found > 0 ? m_next + found : FirstFrom(m_next + 1, count);
        if (DoorClock::now() >= until)
            break;
    }
    news.hasMore = m_next < count;
    std::sort(
        news.calls.begin(), news.calls.end(),
        [](const SDoorCall &one, const SDoorCall &other) { return one.number < other.number; });
}

void CJournalSource::TakeOpen(SDoorNews &news, const std::vector<SVondSimOpenCall> &open)
{
    std::unordered_set<uint64_t> ended;
    if (!open.empty()) {
        for (const SDoorCall &call : news.calls)
            ended.insert(call.number);
    }
    std::unordered_set<uint64_t> told;
    for (const SVondSimOpenCall &row : open) {
        SDoorCall call;
        call.function = FindFunction(row.function);
        if (call.function == nullptr || ended.count(row.time.number) > 0)
            continue;
        told.insert(row.time.number);
        if (m_toldOpen.count(row.time.number) > 0)
            continue;
        SetTime(call, row.time);
        call.handle = row.handle;
        call.timeoutMs = row.timeoutMs;
        news.calls.push_back(std::move(call));
    }
    m_toldOpen = std::move(told);
}

std::vector<SVondSimOpenCall> CJournalSource::OpenCalls() const
{
    std::vector<SVondSimOpenCall> open(16);
    uint32_t count = 0;
    while ((count = m_dut->GetOpenCalls(open.data(), static_cast<uint32_t>(open.size()))) >
           open.size())
        open.resize(count);
    open.resize(count);
    return open;
}

void CJournalSource::TakeCall(SDoorNews &news, uint32_t index, const SVondSimCall &row,
                              const SVondSimCallTime &time)
{
    m_lastNumber = time.number;
    SDoorCall call;
    call.function = FindFunction(row.function);
    if (call.function == nullptr)
        return;
    SetTime(call, time);
    call.place = index;
    call.size = uint64_t{row.requestSize} + row.answerSize;
    call.handle = row.handle;
    call.timeoutMs = row.timeoutMs;
    call.result = row.result;
    call.status = row.status;
    call.durationNs = row.durationNs;
    call.isEnded = true;
    if (call.function->kind != EFunctionKind::Library)
        call.text = QString::fromUtf8(m_dut->ResultText(row.result));
    if (row.answerSize > 0 && !VerdictField(*call.function).empty()) {
        STraceCall answered;
        answered.function = call.function;
        answered.answer.emplace(std::min(kVerdictBytes, row.answerSize));
        m_dut->GetAnswer(index, answered.answer->data(),
                         static_cast<uint32_t>(answered.answer->size()));
        call.hasBadVerdict = HasBadVerdict(answered);
    }
    news.calls.push_back(std::move(call));
}

uint32_t CJournalSource::FirstFrom(uint32_t index, uint32_t count) const
{
    SVondSimCallTime time = {};
    while (index < count) {
        const uint32_t middle = index + (count - index) / 2;
        if (m_dut->GetCallTime(middle, &time) == 0)
            count = middle;
        else
            index = middle + 1;
    }
    return count;
}

uint64_t CJournalSource::FirstPlace()
{
    SVondSimCallTime time = {};
    if (m_first < m_next && m_dut->GetCallTime(m_first, &time) != 0)
        m_first = FirstFrom(m_first + 1, m_next);
    return m_first;
}

std::optional<STraceCall> CJournalSource::Read(const SDoorCall &call) const
{
    STraceCall read = CallWithoutRecords(call);
    if (!call.isEnded)
        return read;
    const auto index = static_cast<uint32_t>(call.place);
    read.request = BytesOf(m_dut->GetRequest, index);
    read.answer = BytesOf(m_dut->GetAnswer, index);
    // Looked at last: until here the call was there.
    SVondSimCallTime time = {};
    if (m_dut->GetCallTime(index, &time) != 0 || time.number != call.number)
        return std::nullopt;
    return read;
}

STraceHeader CJournalSource::Header() const
{
    STraceHeader header = HeaderOfThePair(QUORLIN_VERSION);
    SVondSimCallTime time = {};
    if (m_dut->GetCallTime(m_dut->CallCount() - 1, &time) == 0) {
        const qint64 began = time.startUnixMs - static_cast<qint64>(time.startNs / 1000000);
        header.time = QDateTime::fromMSecsSinceEpoch(began, Qt::UTC)
                          .toString(Qt::ISODateWithMs)
                          .toStdString();
    }
    return header;
}

QString CJournalSource::About() const
{
    return "Journal of the simulated DUT";
}
