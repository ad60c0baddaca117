#include "Runner/plan/ExpectReader.h"

#include <array>

#include "Runner/plan/MapReader.h"
#include "Runner/plan/Numbers.h"

namespace {

constexpr int kMostRows = 1000000;

struct SOfName
{
    EOf of;
    const char *name;
};

constexpr std::array<SOfName, 5> kOfNames = {{
    {.of = EOf::Each, .name = "each"},
    {.of = EOf::Mean, .name = "mean"},
    {.of = EOf::Min, .name = "min"},
    {.of = EOf::Max, .name = "max"},
    {.of = EOf::Last, .name = "last"},
}};

EOf ReadOf(CMapReader &limits)
{
    const std::optional<SPlacedText> text = limits.Text("of");
    if (!text)
        return EOf::Each;
    std::vector<std::string> names;
    for (const SOfName &row : kOfNames) {
        if (text->text == row.name)
            return row.of;
        names.push_back(row.name);
    }
    limits.Complain(text->place, "\"of\" is " + Quoted(text->text), Joined(names));
    return EOf::Each;
}

SPlanExpect ReadLimits(const std::string &file, const SPlanEntry &entry, CPlanErrors &errors)
{
    CMapReader limits(file, "an expectation", entry.value, errors);
    SPlanExpect expect;
    expect.key = {Trimmed(entry.key.text), entry.key.place};
    const std::optional<SPlacedText> value = limits.Text("value");
    if (value)
        expect.value = value->text;
    expect.min = limits.Number("min");
    expect.max = limits.Number("max");
    expect.of = ReadOf(limits);
    expect.minus = limits.Text("minus");
    limits.Done();
    const bool hasLimit = limits.Node("min") || limits.Node("max");
    if (!limits.Node("value") && !hasLimit && limits.IsMap())
        limits.Complain(entry.value.place, "the expectation names no limit", "value, min, max");
    if (value && hasLimit)
        limits.Complain(value->place, "a value and limits exclude each other");
    if (expect.min && expect.max && *expect.min > *expect.max)
        limits.Complain(entry.value.place, "\"min\" is above \"max\"");
    return expect;
}

std::optional<SPlacedText> ReadText(const std::string &file, const SPlanEntry &entry,
                                    CPlanErrors &errors)
{
    const std::string text = Trimmed(entry.value.text);
    if (entry.value.kind == EPlanNode::Text && !text.empty())
        return SPlacedText{text, entry.value.place};
    errors.Add(file, entry.value.place,
               Quoted(entry.key.text) + " is " +
                   (entry.value.kind == EPlanNode::Text ? "empty" : KindText(entry.value.kind)),
               entry.key.text == "box" ? "a text, or a list of texts" : "a text");
    return std::nullopt;
}

// One text, or a list of them.
std::vector<SPlacedText> ReadBoxes(const std::string &file, const SPlanEntry &entry,
                                   CPlanErrors &errors)
{
    std::vector<SPlacedText> boxes;
    if (entry.value.kind != EPlanNode::List) {
        if (const auto text = ReadText(file, entry, errors))
            boxes.push_back(*text);
        return boxes;
    }
    for (const SPlanNode &item : entry.value.items)
        if (const auto text = ReadText(file, {entry.key, item}, errors))
            boxes.push_back(*text);
    return boxes;
}

}  // namespace

SPlanWait ReadWait(const std::string &file, const SPlanNode &node, CPlanErrors &errors)
{
    CMapReader map(file, "\"wait\"", node, errors);
    SPlanWait wait;
    if (const std::optional<SPlacedText> rows = map.Text("rows")) {
        wait.rows = ParseCount(rows->text, kMostRows);
        if (!wait.rows)
            map.Complain(rows->place, "\"rows\" is " + Quoted(rows->text),
                         "a number from 0 to " + std::to_string(kMostRows));
    }
    wait.time = map.Duration("time");
    wait.timeout = map.Duration("timeout").value_or(wait.timeout);
    map.Done();
    const SPlanNode *rows = map.Node("rows"), *time = map.Node("time");
    if (map.IsMap() && !rows == !time)
        map.Complain(node.place,
                     rows ? "\"wait\" has both rows and time" : "\"wait\" says not for what",
                     "{rows: 20, timeout: 30s} or {time: 1h}");
    if (time && map.Node("timeout"))
        map.Complain(map.Node("timeout")->place, "a wait for a time has no timeout");
    return wait;
}

void ReadExpect(const std::string &file, const SPlanNode &node, SPlanStep &step,
                CPlanErrors &errors)
{
    if (node.kind != EPlanNode::Map)
        errors.Add(file, node.place, "\"expect\" is " + KindText(node.kind),
                   "a map of members and what is expected");
    for (const SPlanEntry &entry : node.entries) {
        if (entry.key.text == "status")
            step.status = ReadText(file, entry, errors);
        else if (entry.key.text == "box")
            step.boxes = ReadBoxes(file, entry, errors);
        else if (entry.value.kind == EPlanNode::Map)
            step.expect.push_back(ReadLimits(file, entry, errors));
        else if (const auto text = ReadText(file, entry, errors))
            step.expect.push_back({.key = {Trimmed(entry.key.text), entry.key.place},
                                   .of = EOf::Each,
                                   .value = text->text,
                                   .min = {},
                                   .max = {},
                                   .minus = {}});
    }
}
