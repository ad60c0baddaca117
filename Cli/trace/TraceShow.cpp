#include "Cli/trace/TraceShow.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "Cli/Commands.h"
#include "Cli/trace/RecordOutput.h"
#include "Cli/trace/TraceText.h"
#include "Trace/lines/PrintableText.h"
#include "Trace/words/CallText.h"
#include "Trace/words/ShownRecord.h"

namespace {

using nlohmann::ordered_json;

const std::string kRecordIndent = "    ";
const std::string kFieldIndent = "      ";

std::optional<SShownRecord> RequestOf(const STraceCall &call)
{
    if (!call.request)
        return std::nullopt;
    return ShownRequest(*call.function, *call.request);
}

std::optional<SShownRecord> AnswerOf(const STraceCall &call)
{
    if (!call.answer)
        return std::nullopt;
    return ShownAnswer(*call.function, *call.answer,
                       call.request ? *call.request : std::vector<uint8_t>());
}

bool IsWanted(const STraceShowOptions &options, const STraceCall &call)
{
    return (!options.call || call.index == *options.call) &&
           (options.function.empty() || call.function->name == options.function) &&
           (!options.isFailedOnly || HasFailed(call));
}

bool HasFilter(const STraceShowOptions &options)
{
    return options.call || !options.function.empty() || options.isFailedOnly;
}

void Check(const STraceShowOptions &options, const STrace &trace)
{
    if (!options.function.empty() && FindFunction(options.function) == nullptr)
        throw std::runtime_error("--function: " + options.function + " is none of the pair's");
    if (!options.call)
        return;
    for (const STraceCall &call : trace.calls) {
        if (call.index == *options.call)
            return;
    }
    throw std::runtime_error(options.path + ": has no call " + std::to_string(*options.call));
}

struct SStory
{
    std::function<void(const STraceNote &)> note;
    std::function<void(const STraceCall &)> call;
};

// Notes and calls as they followed one another. With a filter, of the notes only the last one before
// each call that is wanted.
void Tell(const STrace &trace, const STraceShowOptions &options, const SStory &story)
{
    const bool isFiltered = HasFilter(options);
    const STraceNote *last = nullptr;
    std::size_t note = 0;
    for (std::size_t i = 0; i <= trace.calls.size(); ++i) {
        for (; note < trace.notes.size() && trace.notes[note].before <= i; ++note) {
            last = &trace.notes[note];
            if (!isFiltered)
                story.note(*last);
        }
        if (i == trace.calls.size() || !IsWanted(options, trace.calls[i]))
            continue;
        if (isFiltered && last != nullptr)
            story.note(*last);
        last = nullptr;
        story.call(trace.calls[i]);
    }
}

bool IsAllZero(const SShownRecord &record)
{
    return !record.fields.empty() &&
           std::none_of(record.fields.begin(), record.fields.end(),
                        [](const SShownField &field) { return field.isSet; });
}

void PrintPart(COutput &output, const std::string &name, const SLayout *layout,
               const std::optional<SShownRecord> &record)
{
    if (!record && layout == nullptr)
        return;
    std::string head = kRecordIndent + name;
    if (!record)
        head += ": none, a null pointer";
    else
        head += ", " + ByteCount(record->size) + (IsAllZero(*record) ? ", all zero" : "");
    output.Line(output.Palette().Aside(head));
    if (record)
        PrintRecord(output, *record, EWhichFields::Set, kFieldIndent);
}

void PrintCall(COutput &output, const STraceCall &call)
{
    const CPalette &palette = output.Palette();
    std::string head =
        "#" + std::to_string(call.index) + " " + palette.Function(call.function->name) + "  ";
    if (!call.isEnded) {
        output.Line(head + palette.Failure("open") + ": it was on its way when the trace ended");
        output.Line();
        return;
    }
    head += call.result == 0 ? palette.Good(ResultText(call)) : palette.Failure(ResultText(call));
    if (call.status != 0)
        head += ", status " + palette.Failure(StatusText(call.status));
    if (HasBadVerdict(call))
        head += ", verdict " + palette.Failure("failure");
    output.Line(head + "  " + DurationText(call.durationNs));
    if (call.function->kind != EFunctionKind::Library) {
        std::string line = kRecordIndent + "handle " + std::to_string(call.handle);
        if (call.function->kind == EFunctionKind::Target)
            line += ", timeout " + std::to_string(call.timeoutMs) + " ms";
        output.Line(palette.Aside(line));
    }
    PrintPart(output, "request", call.function->request, RequestOf(call));
    PrintPart(output, "answer", call.function->answer, AnswerOf(call));
    output.Line();
}

void ShowText(const STrace &trace, const STraceShowOptions &options)
{
    COutput output;
    output.Line(HeaderText(options.path, trace.header));
    output.Line();
    std::size_t shown = 0;
    const SStory story = {.note =
                              [&](const STraceNote &note) {
                                  output.Line(
                                      output.Palette().Heading("== " + PrintableText(note.text)));
                                  output.Line();
                              },
                          .call =
                              [&](const STraceCall &call) {
                                  PrintCall(output, call);
                                  ++shown;
                              }};
    Tell(trace, options, story);
    output.Line(std::to_string(shown) + " of " + std::to_string(trace.calls.size()) + " calls");
    output.End();
}

ordered_json PartJson(const std::optional<SShownRecord> &record)
{
    return record ? RecordJson(*record, EWhichFields::Set) : ordered_json();
}

ordered_json CallJson(const STraceCall &call)
{
    ordered_json json = {{"index", call.index},     {"function", call.function->name},
                         {"thread", call.thread},   {"pid", call.process},
                         {"startNs", call.startNs}, {"ended", call.isEnded}};
    if (!call.isEnded)
        return json;
    json["handle"] = call.handle;
    json["timeout"] = call.timeoutMs;
    json["request"] = PartJson(RequestOf(call));
    json["answer"] = PartJson(AnswerOf(call));
    json["result"] = call.result;
    json["text"] = call.text;
    json["status"] = call.status;
    json["durationNs"] = call.durationNs;
    return json;
}

// One object, written entry by entry: a trace may be long.
void ShowJson(const STrace &trace, const STraceShowOptions &options)
{
    COutput output;
    const ordered_json header = {
        {"tool", trace.header.tool}, {"time", trace.header.time},
        {"core", trace.header.core}, {"coreBuildId", trace.header.coreBuildId},
        {"app", trace.header.app},   {"appBuildId", trace.header.appBuildId}};
    output.Write("{\"header\":" + header.dump() + ",\"isCut\":" + (trace.isCut ? "true" : "false") +
                 ",\"entries\":[");
    std::string comma = "\n";
    const auto write = [&](const ordered_json &entry) {
        output.Write(comma + entry.dump());
        comma = ",\n";
    };
    const SStory story = {.note =
                              [&](const STraceNote &note) {
                                  write({{"note", note.text}, {"startNs", note.startNs}});
                              },
                          .call = [&](const STraceCall &call) { write(CallJson(call)); }};
    Tell(trace, options, story);
    output.Line("\n]}");
    output.End();
}

}  // namespace

int ShowTrace(const STraceShowOptions &options)
{
    const STrace trace = ReadTrace(options.path, ECutLine::LeftOut);
    Check(options, trace);
    WarnOfCutLine(options.path, trace);
    if (options.isJson)
        ShowJson(trace, options);
    else
        ShowText(trace, options);
    return kExitGood;
}
