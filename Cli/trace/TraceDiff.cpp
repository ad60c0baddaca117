#include "Cli/trace/TraceDiff.h"

#include <algorithm>
#include <map>
#include <utility>

#include <nlohmann/json.hpp>

#include "Cli/Commands.h"
#include "Cli/trace/FieldPattern.h"
#include "Cli/trace/Output.h"
#include "Cli/trace/Pairing.h"
#include "Cli/trace/TraceText.h"
#include "Trace/lines/PrintableText.h"
#include "Trace/words/CallComparison.h"
#include "Trace/words/CallText.h"

namespace {

using DiffJson = nlohmann::ordered_json;

SComparisonRules RulesOf(const STraceDiffOptions &options)
{
    SComparisonRules rules;
    rules.isTimed = options.isTimed;
    std::vector<CFieldPattern> patterns;
    for (const std::string &name : options.ignored) {
        if (name == "readings")
            rules.ignoresReadings = true;
        else
            patterns.emplace_back(name);
    }
    rules.isIgnored = [patterns](ECallPart part, std::string_view name) {
        return std::any_of(patterns.begin(), patterns.end(), [&](const CFieldPattern &pattern) {
            return pattern.Matches(part, name);
        });
    };
    return rules;
}

// Gives equal requests of a function one number.
class CKeyMaker
{
public:
    std::vector<SPairingKey> Keys(const STrace &trace)
    {
        std::vector<SPairingKey> keys;
        for (const STraceCall &call : trace.calls) {
            const auto function = static_cast<uint32_t>(call.function->id);
            const auto next = static_cast<uint32_t>(m_numbers.size());
            const auto found = m_numbers.try_emplace({function, ViewOf(call.request)}, next).first;
            keys.push_back({.function = function, .request = found->second});
        }
        return keys;
    }

private:
    using View = std::optional<std::string_view>;

    static View ViewOf(const TraceBytes &bytes)
    {
        if (!bytes)
            return std::nullopt;
        return std::string_view(reinterpret_cast<const char *>(bytes->data()), bytes->size());
    }

    std::map<std::pair<uint32_t, View>, uint32_t> m_numbers;
};

std::vector<SCallDifference> HeaderDifferences(const STraceHeader &one, const STraceHeader &other)
{
    std::vector<SCallDifference> differences;
    for (const STraceHeaderKey &row : kTraceHeaderKeys) {
        if (one.*row.value != other.*row.value)
            differences.push_back({row.key, one.*row.value, other.*row.value});
    }
    return differences;
}

// A call that differs, or that one of the two lacks.
struct SDifferentCall
{
    const STraceCall *one = nullptr;
    const STraceCall *other = nullptr;
    std::vector<SCallDifference> fields = {};
};

struct SDiff
{
    std::vector<SCallDifference> header = {};
    std::vector<SDifferentCall> calls = {};
    std::size_t onlyOne = 0;
    std::size_t onlyOther = 0;
    std::size_t same = 0;

    bool IsSame() const { return header.empty() && calls.empty(); }
};

SDiff DiffOf(const STrace &one, const STrace &other, const SComparisonRules &rules)
{
    SDiff diff;
    if (rules.isTimed)
        diff.header = HeaderDifferences(one.header, other.header);
    CKeyMaker maker;
    const std::vector<SPairingKey> keys = maker.Keys(one);
    for (const SPairing &pair : PairCalls(keys, maker.Keys(other))) {
        SDifferentCall call;
        if (pair.one)
            call.one = &one.calls[*pair.one];
        if (pair.other)
            call.other = &other.calls[*pair.other];
        if (call.one != nullptr && call.other != nullptr) {
            call.fields = CallDifferences(*call.one, *call.other, rules);
            if (call.fields.empty()) {
                ++diff.same;
                continue;
            }
        } else {
            ++(call.one != nullptr ? diff.onlyOne : diff.onlyOther);
        }
        diff.calls.push_back(std::move(call));
    }
    return diff;
}

std::string NumberOf(const STraceCall *call)
{
    return "#" + std::to_string(call->index);
}

void PrintFields(COutput &output, const std::vector<SCallDifference> &fields)
{
    std::size_t width = 0;
    for (const SCallDifference &field : fields)
        width = std::max(width, field.name.size());
    for (const SCallDifference &field : fields) {
        std::string line = "    " + field.name;
        line.append(width - field.name.size() + 2, ' ');
        line += output.Palette().Failure(PrintableText(field.one)) + "  |  " +
                output.Palette().Good(PrintableText(field.other));
        output.Line(line);
    }
}

void PrintDifferentCall(COutput &output, const SDifferentCall &call)
{
    const CPalette &palette = output.Palette();
    const STraceCall *const any = call.one != nullptr ? call.one : call.other;
    const std::string name = "  " + palette.Function(any->function->name);
    if (call.other == nullptr)
        output.Line(palette.Failure("A " + NumberOf(call.one) + " alone") + name);
    else if (call.one == nullptr)
        output.Line(palette.Good("B " + NumberOf(call.other) + " alone") + name);
    else
        output.Line("A " + NumberOf(call.one) + ", B " + NumberOf(call.other) + name);
    PrintFields(output, call.fields);
}

std::string CallCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " call" : " calls");
}

void PrintDiff(const STraceDiffOptions &options, const STrace &one, const STrace &other,
               const SDiff &diff)
{
    COutput output;
    if (diff.IsSame()) {
        output.Line("No difference in " + CallCount(diff.same));
        output.End();
        return;
    }
    output.Line("A  " + HeaderText(options.one, one.header));
    output.Line("B  " + HeaderText(options.other, other.header));
    PrintFields(output, diff.header);
    output.Line();
    for (const SDifferentCall &call : diff.calls)
        PrintDifferentCall(output, call);
    if (!diff.calls.empty())
        output.Line();
    output.Line(CallCount(diff.calls.size() - diff.onlyOne - diff.onlyOther) +
                " with differences, " + std::to_string(diff.onlyOne) + " in A alone, " +
                std::to_string(diff.onlyOther) + " in B alone, " + std::to_string(diff.same) +
                " the same");
    output.End();
}

DiffJson FieldsJson(const std::vector<SCallDifference> &fields)
{
    DiffJson json = DiffJson::array();
    for (const SCallDifference &field : fields)
        json.push_back({{"name", field.name}, {"a", field.one}, {"b", field.other}});
    return json;
}

DiffJson IndexJson(const STraceCall *call)
{
    return call != nullptr ? DiffJson(call->index) : DiffJson();
}

void WriteJson(const SDiff &diff)
{
    DiffJson calls = DiffJson::array();
    for (const SDifferentCall &call : diff.calls) {
        const STraceCall *const any = call.one != nullptr ? call.one : call.other;
        calls.push_back({{"function", any->function->name},
                         {"a", IndexJson(call.one)},
                         {"b", IndexJson(call.other)},
                         {"fields", FieldsJson(call.fields)}});
    }
    const DiffJson json = {{"same", diff.IsSame()},
                           {"header", FieldsJson(diff.header)},
                           {"calls", std::move(calls)},
                           {"sameCalls", diff.same}};
    COutput output;
    output.Line(json.dump(2));
    output.End();
}

}  // namespace

int DiffTraces(const STraceDiffOptions &options)
{
    const SComparisonRules rules = RulesOf(options);
    const STrace one = ReadTrace(options.one, ECutLine::Refused);
    const STrace other = ReadTrace(options.other, ECutLine::Refused);
    const SDiff diff = DiffOf(one, other, rules);
    if (options.isJson)
        WriteJson(diff);
    else
        PrintDiff(options, one, other, diff);
    return diff.IsSame() ? kExitGood : kExitDifferent;
}
