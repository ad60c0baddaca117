#include "tests/cli/ShownJson.h"

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

SJsonRecord RecordOf(const json &shown)
{
    SJsonRecord record = {.size = shown.at("size"),
                          .isWhole = !shown.contains("missing") && !shown.contains("rest")};
    for (const auto &[name, field] : shown.at("fields").items()) {
        if (field.contains("raw"))
            record.numbers.emplace(name, field.at("raw"));
        else
            record.texts.emplace(name, field.at("text"));
    }
    return record;
}

std::optional<SJsonRecord> PartOf(const json &call, const char *name)
{
    if (call.at(name).is_null())
        return std::nullopt;
    return RecordOf(call.at(name));
}

}  // namespace

std::vector<SJsonCall> ShownCalls(const std::string &text)
{
    std::vector<SJsonCall> calls;
    const json shown = json::parse(text);
    for (const json &entry : shown.at("entries"))
        calls.push_back({.function = entry.at("function"),
                         .request = PartOf(entry, "request"),
                         .answer = PartOf(entry, "answer")});
    return calls;
}

SJsonRecord DecodedRecord(const std::string &text)
{
    return RecordOf(json::parse(text));
}
