#include "Cli/trace/RecordOutput.h"

#include <algorithm>

namespace {

constexpr std::size_t kWidestName = 44;  // a longer one moves its value alone

}  // namespace

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
