#include "tests/common/SimJournal.h"

namespace {

using ReadBytes = uint32_t (*)(uint32_t, void *, uint32_t);

QByteArray Bytes(ReadBytes read, uint32_t index)
{
    QByteArray bytes(static_cast<int>(read(index, nullptr, 0)), '\0');
    read(index, bytes.data(), static_cast<uint32_t>(bytes.size()));
    return bytes;
}

}  // namespace

QVector<SJournalCall> Journal()
{
    QVector<SJournalCall> calls;
    SJournalCall entry;
    for (uint32_t i = 0; VondSim_GetCall(i, &entry.call) == 0; ++i) {
        entry.request = Bytes(&VondSim_GetRequest, i);
        entry.answer = Bytes(&VondSim_GetAnswer, i);
        calls.append(entry);
    }
    return calls;
}

QVector<SJournalCall> JournalOf(const char *function)
{
    QVector<SJournalCall> calls;
    for (const SJournalCall &entry : Journal()) {
        if (qstrcmp(entry.call.function, function) == 0)
            calls.append(entry);
    }
    return calls;
}

int CountCalls(const char *function)
{
    return JournalOf(function).size();
}
