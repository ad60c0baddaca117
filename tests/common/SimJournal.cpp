#include "tests/common/SimJournal.h"

#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Functions.h"

namespace {

using ReadBytes = uint32_t (*)(uint32_t, void *, uint32_t);

QByteArray Bytes(ReadBytes read, uint32_t index)
{
    QByteArray bytes(static_cast<int>(read(index, nullptr, 0)), '\0');
    read(index, bytes.data(), static_cast<uint32_t>(bytes.size()));
    return bytes;
}

// Calls of a function, or of all with null. Bytes are read of those alone: a round of calibration data
// has hundreds of kilobytes, and tests look at each turn of the event loop.
QVector<SJournalCall> Calls(const char *function)
{
    QVector<SJournalCall> calls;
    SJournalCall entry;
    for (uint32_t i = 0; VondSim_GetCall(i, &entry.call) == 0; ++i) {
        if (function && qstrcmp(entry.call.function, function) != 0)
            continue;
        entry.request = Bytes(&VondSim_GetRequest, i);
        entry.answer = Bytes(&VondSim_GetAnswer, i);
        calls.append(entry);
    }
    return calls;
}

}  // namespace

QVector<SJournalCall> Journal()
{
    return Calls(nullptr);
}

QByteArray RequestOf(uint32_t index)
{
    return Bytes(&VondSim_GetRequest, index);
}

QVector<SJournalCall> JournalOf(const char *function)
{
    return Calls(function);
}

int CountCalls(const char *function)
{
    int count = 0;
    SVondSimCall call;
    for (uint32_t i = 0; VondSim_GetCall(i, &call) == 0; ++i)
        count += qstrcmp(call.function, function) == 0;
    return count;
}

std::optional<int64_t> RequestNumber(const SJournalCall &call, std::string_view field)
{
    const SFunction *const function = FindFunction(call.call.function);
    if (function == nullptr || function->request == nullptr)
        return std::nullopt;
    const auto *const bytes = reinterpret_cast<const uint8_t *>(call.request.constData());
    return NumberAt(*function->request, {bytes, static_cast<size_t>(call.request.size())}, field);
}
