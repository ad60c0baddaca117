#include "Cli/trace/ShownRecord.h"

#include <algorithm>
#include <set>

#include "Trace/dictionary/Decode.h"
#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/ValueText.h"

namespace {

using ShownBytes = std::span<const uint8_t>;

constexpr std::size_t kWidestName = 44;  // a longer one moves its value alone

SShownField ShownFieldOf(const SFieldValue &value)
{
    SShownField field = {.name = std::string(value.name),
                         .text = ValueText(value),
                         .raw = std::nullopt,
                         .isSet = value.IsSet(),
                         .isReserved = value.field->at.isReserved,
                         .isReading = value.isReading,
                         .remark = std::string(value.remark),
                         .condition = {}};
    if (IsWholeNumber(value.field->at.type))
        field.raw = value.number;
    return field;
}

// A request that has the value which a choice asks for, and is zero otherwise.
std::vector<uint8_t> ChoosingRequest(const SLayout &request, const SChoice &choice)
{
    std::vector<uint8_t> bytes(request.size);
    const SFieldPlace &place = request.fields[RowOf(request, choice.field)].at;
    WriteNumber(place.type, choice.value, std::span(bytes).subspan(place.offset));
    return bytes;
}

std::string ConditionOf(const SLayout &request, const SChoice &choice, bool isChosen)
{
    const SField &field = request.fields[RowOf(request, choice.field)];
    std::string words = "if ";
    words.append(choice.field).append(" of the request is ").append(isChosen ? "" : "not ");
    words += std::to_string(choice.value);
    for (const SValueName &row : field.values) {
        if (row.value == choice.value)
            words.append(" (").append(row.name).append(")");
    }
    return words;
}

// Says of the fields that hang on the request when they hold.
void AddConditions(const SFunction &function, ShownBytes bytes, SShownRecord &shown)
{
    const SChoice choice = ChoiceOfRequest(*function.answer);
    std::set<std::string, std::less<>> chosen;
    DecodeAnswer(function, bytes, ChoosingRequest(*function.request, choice),
                 [&](const SFieldValue &value) { chosen.emplace(value.name); });
    for (SShownField &field : shown.fields) {
        if (!field.condition.empty())
            field.condition = ConditionOf(*function.request, choice, chosen.count(field.name) > 0);
    }
}

void End(const SDecoded &decoded, ShownBytes bytes, SShownRecord &shown)
{
    shown.size = bytes.size();
    shown.missing = decoded.missing;
    shown.rest = HexDigits(bytes.last(decoded.extra));
}

bool IsShown(const SShownField &field, EWhichFields which)
{
    // Reserved bytes say something only when somebody has set them.
    return field.isSet || (which == EWhichFields::All && !field.isReserved);
}

}  // namespace

std::string ByteCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

SShownRecord ShownRequest(const SFunction &function, ShownBytes bytes)
{
    SShownRecord shown;
    const SDecoded decoded = DecodeRequest(function, bytes, [&](const SFieldValue &value) {
        shown.fields.push_back(ShownFieldOf(value));
    });
    End(decoded, bytes, shown);
    return shown;
}

SShownRecord ShownAnswer(const SFunction &function, ShownBytes bytes, ShownBytes request)
{
    SShownRecord shown;
    bool isCertain = true;
    const SDecoded decoded = DecodeAnswer(function, bytes, request, [&](const SFieldValue &value) {
        shown.fields.push_back(ShownFieldOf(value));
        if (!value.isCertain)
            shown.fields.back().condition = "if its layout holds";
        isCertain = isCertain && value.isCertain;
    });
    if (!isCertain && function.HangsOnRequest())
        AddConditions(function, bytes, shown);
    End(decoded, bytes, shown);
    return shown;
}

void PrintRecord(COutput &output, const SShownRecord &record, EWhichFields which,
                 const std::string &indent)
{
    std::size_t width = 0;
    for (const SShownField &field : record.fields) {
        if (IsShown(field, which))
            width = std::max(width, std::min(field.name.size(), kWidestName));
    }
    std::string condition;
    for (const SShownField &field : record.fields) {
        if (!IsShown(field, which))
            continue;
        if (field.condition != condition)
            output.Line(indent + output.Palette().Aside(field.condition + ":"));
        condition = field.condition;
        std::string line = indent + (condition.empty() ? "" : "  ") + field.name;
        line.append(width - std::min(width, field.name.size()) + 2, ' ').append(field.text);
        if (!field.remark.empty())
            line += output.Palette().Aside("  (" + field.remark + ")");
        output.Line(line);
    }
    if (record.missing > 0)
        output.Line(indent + ByteCount(record.missing) + " missing");
    if (!record.rest.empty())
        output.Line(indent + ByteCount(record.rest.size() / 2) + " behind its end: " + record.rest);
}

nlohmann::ordered_json RecordJson(const SShownRecord &record, EWhichFields which)
{
    nlohmann::ordered_json json = {{"size", record.size}};
    if (record.missing > 0)
        json["missing"] = record.missing;
    if (!record.rest.empty())
        json["rest"] = record.rest;
    nlohmann::ordered_json::object_t fields;
    for (const SShownField &field : record.fields) {
        if (!IsShown(field, which))
            continue;
        nlohmann::ordered_json shown = nlohmann::ordered_json::object();
        if (field.raw)
            shown["raw"] = *field.raw;
        shown["text"] = field.text;
        if (field.isReading)
            shown["reading"] = true;
        if (!field.remark.empty())
            shown["remark"] = field.remark;
        if (!field.condition.empty())
            shown["if"] = field.condition;
        // Not by key, which would look through all of them for each.
        fields.emplace_back(field.name, std::move(shown));
    }
    json["fields"] = std::move(fields);
    return json;
}
