#include "Host/door/TraceSave.h"

#include <algorithm>

#include <QSaveFile>

#include "Support/WholeFile.h"
#include "Trace/lines/TraceLines.h"

namespace {

STraceView ViewOf(const TraceBytes &bytes)
{
    if (!bytes)
        return {};
    // No bytes are not a null pointer.
    return {.data = bytes->empty() ? static_cast<const void *>("") : bytes->data(),
            .size = bytes->size()};
}

void AppendCall(CLineBuffer &lines, const STraceCall &call)
{
    AppendBeginLine(lines, {.index = call.index,
                            .function = call.function,
                            .thread = call.thread,
                            .process = call.process,
                            .startNs = call.startNs});
    if (!call.isEnded)
        return;
    AppendEndLineToRequest(lines, call.index,
                           {.function = call.function,
                            .handle = call.handle,
                            .timeoutMs = call.timeoutMs,
                            .request = ViewOf(call.request)});
    AppendEndLineFromAnswer(lines, {.answer = ViewOf(call.answer),
                                    .result = call.result,
                                    .text = call.text,
                                    .status = call.status,
                                    .durationNs = call.durationNs});
}

bool Write(QSaveFile &file, CLineBuffer &lines)
{
    const std::string_view text = lines.Text();
    const auto size = static_cast<qint64>(text.size());
    const bool isWritten = file.write(text.data(), size) == size;
    lines.Clear();
    return isWritten;
}

}  // namespace

STraceSaved SaveTrace(const IDoorSource &source, const STraceHeader &header,
                      std::vector<SDoorCall> calls, const QString &path,
                      const std::atomic<bool> &isStopped)
{
    STraceSaved saved;
    QSaveFile file(path);
    std::sort(calls.begin(), calls.end(), [](const SDoorCall &one, const SDoorCall &other) {
        return one.number < other.number;
    });
    CLineBuffer lines;
    AppendHeaderLine(lines, header);
    bool isGood = file.open(QIODevice::WriteOnly) && Write(file, lines);
    for (const SDoorCall &row : calls) {
        if (!isGood || isStopped)
            break;
        const std::optional<STraceCall> call = source.Read(row);
        saved.gone += call ? 0 : 1;
        if (!call)
            continue;
        AppendCall(lines, *call);
        isGood = Write(file, lines);
        ++saved.written;
    }
    if (isStopped)
        return saved;  // and the file goes
    const QString why = isGood ? CommitWhole(file) : file.errorString();
    if (!why.isEmpty())
        saved.error = QString("Can't write %1: %2.").arg(path, why);
    return saved;
}
