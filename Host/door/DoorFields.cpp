#include "Host/door/DoorFields.h"

#include "Trace/words/CallComparison.h"
#include "Trace/words/CallText.h"

namespace {

QString NameOf(const STraceCall &call)
{
    return QString("Call %1, %2")
        .arg(call.index)
        .arg(QString::fromLatin1(call.function->name.data(),
                                 static_cast<int>(call.function->name.size())));
}

void AddRecord(SDoorFields &fields, const std::string &part, const SShownRecord &record,
               EWhichFields which)
{
    for (const SShownField &field : record.fields) {
        if (!IsShown(field, which))
            continue;
        std::string text = field.text;
        if (!field.condition.empty())
            text += "  (" + field.condition + ")";
        if (!field.remark.empty())
            text += "  (" + field.remark + ")";
        fields.rows.push_back({.name = part + "." + field.name, .one = text, .other = {}});
    }
    if (record.missing > 0)
        fields.rows.push_back({part, ByteCount(record.missing) + " missing", {}});
    if (!record.rest.empty())
        fields.rows.push_back(
            {part, ByteCount(record.rest.size() / 2) + " behind its end: " + record.rest, {}});
}

void AddCall(SDoorFields &fields, const STraceCall &call)
{
    const auto add = [&](const char *name, std::string text) {
        fields.rows.push_back({.name = name, .one = std::move(text), .other = {}});
    };
    if (call.function->kind != EFunctionKind::Library)
        add("handle", std::to_string(call.handle));
    if (call.function->kind == EFunctionKind::Target)
        add("timeout", std::to_string(call.timeoutMs) + " ms");
    add("thread", std::to_string(call.thread));
    if (!call.isEnded)
        return;
    add("duration", DurationText(call.durationNs));
    if (call.function->kind != EFunctionKind::Library)
        add("result", ResultText(call));
    if (call.function->HasStatus())
        add("status", StatusText(call.status));
}

}  // namespace

SDoorFields FieldsOfCall(const STraceCall &call, EWhichFields which)
{
    SDoorFields fields = {.about = NameOf(call), .captions = {"Field", "Value"}, .rows = {}};
    AddCall(fields, call);
    if (!call.isEnded) {
        fields.about += ": has not come back; its fields are shown when it has.";
        return fields;
    }
    if (call.request)
        AddRecord(fields, "request", ShownRequest(*call.function, *call.request), which);
    if (call.answer) {
        const std::vector<uint8_t> request = call.request.value_or(std::vector<uint8_t>());
        AddRecord(fields, "answer", ShownAnswer(*call.function, *call.answer, request), which);
    } else if (call.function->answer != nullptr) {
        fields.about += ": no answer came.";
    }
    return fields;
}

SDoorFields DifferencesOfCalls(const STraceCall &one, const STraceCall &other)
{
    SDoorFields fields;
    fields.captions = QStringList{"Field", QString("Call %1").arg(one.index),
                                  QString("Call %1").arg(other.index)};
    const QString calls = QString("Calls %1 and %2").arg(one.index).arg(other.index);
    if (one.function != other.function) {
        fields.about = calls + " are of two functions. Choose two of one function to compare them.";
        return fields;
    }
    for (SCallDifference &field : CallDifferences(one, other, {}))
        fields.rows.push_back({field.name, field.one, field.other});
    fields.about = fields.rows.empty() ? calls + " are the same in all fields."
                                       : QString("%1 differ in %2 field%3.")
                                             .arg(calls)
                                             .arg(fields.rows.size())
                                             .arg(fields.rows.size() == 1 ? "" : "s");
    return fields;
}
