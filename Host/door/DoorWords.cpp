#include "Host/door/DoorWords.h"

#include <QDateTime>

#include "Trace/words/CallText.h"

QString DoorTime(const SDoorCall &call)
{
    return QDateTime::fromMSecsSinceEpoch(call.startUnixMs).toString("HH:mm:ss.zzz");
}

QString DoorDuration(const SDoorCall &call)
{
    return call.isEnded ? QString::fromStdString(DurationText(call.durationNs)) : QString();
}

QString DoorResult(const SDoorCall &call)
{
    if (!call.isEnded)
        return "not back yet";
    if (call.function->kind == EFunctionKind::Library)
        return "answered";
    QString words = call.text.isEmpty() ? QString::number(call.result)
                                        : QString("%1 (%2)").arg(call.text).arg(call.result);
    if (call.status != 0)
        words += ", status: " + QString::fromStdString(StatusText(call.status));
    if (call.hasBadVerdict)
        words += ", the transfer failed";
    return words;
}

QString DoorFunction(const SDoorCall &call)
{
    return QString::fromLatin1(call.function->name.data(),
                               static_cast<int>(call.function->name.size()));
}

SDoorCall DoorCallOf(const STraceCall &call, int64_t beganUnixMs)
{
    SDoorCall row;
    row.number = call.index;
    row.function = call.function;
    row.startUnixMs = beganUnixMs + static_cast<int64_t>(call.startNs / 1000000);
    row.startNs = call.startNs;
    row.durationNs = call.durationNs;
    row.thread = call.thread;
    row.process = call.process;
    row.handle = call.handle;
    row.timeoutMs = call.timeoutMs;
    row.result = call.result;
    row.status = call.status;
    row.text = QString::fromStdString(call.text);
    row.isEnded = call.isEnded;
    row.hasBadVerdict = call.isEnded && HasBadVerdict(call);
    return row;
}

STraceCall CallWithoutRecords(const SDoorCall &row)
{
    STraceCall call;
    call.index = row.number;
    call.function = row.function;
    call.handle = row.handle;
    call.timeoutMs = row.timeoutMs;
    call.result = row.result;
    call.text = row.text.toStdString();
    call.status = row.status;
    call.startNs = row.startNs;
    call.durationNs = row.durationNs;
    call.thread = row.thread;
    call.process = row.process;
    call.isEnded = row.isEnded;
    return call;
}
