#include "Runner/plan/SettingReader.h"

#include "Runner/plan/MapReader.h"
#include "Runner/plan/Numbers.h"

namespace {

constexpr char kSetForm[] = "a value, min, mid or max; a cell is named key[column]";
constexpr char kSweepForm[] = "a list of values, or {from: 0, to: 10, step: 2}";

std::vector<SPlacedText> ReadRange(const std::string &file, const SPlanNode &node,
                                   CPlanErrors &errors)
{
    CMapReader range(file, "a range", node, errors);
    const SPlacedText from = range.NeededText("from"), to = range.NeededText("to"),
                      step = range.NeededText("step");
    range.Done();
    if (from.text.empty() || to.text.empty() || step.text.empty())
        return {};
    std::string error;
    const auto texts = ExpandRange(from.text, to.text, step.text, error);
    if (!texts)
        errors.Add(file, node.place, error);
    std::vector<SPlacedText> values;
    for (const std::string &text : texts.value_or(std::vector<std::string>()))
        values.push_back({text, node.place});
    return values;
}

std::vector<SPlacedText> ReadValues(const std::string &file, const SPlanEntry &entry,
                                    CPlanErrors &errors)
{
    if (entry.value.kind == EPlanNode::Map)
        return ReadRange(file, entry.value, errors);
    std::vector<SPlacedText> values;
    for (const SPlanNode &item : entry.value.items) {
        if (item.kind == EPlanNode::Text)
            values.push_back({Trimmed(item.text), item.place});
        else
            errors.Add(file, item.place,
                       "a value of " + Quoted(entry.key.text) + " is " + KindText(item.kind),
                       "a text or number");
    }
    if (entry.value.kind != EPlanNode::List || entry.value.items.empty())
        errors.Add(file, entry.value.place,
                   "the sweep of " + Quoted(entry.key.text) + " is " +
                       (entry.value.kind == EPlanNode::List ? "empty" : KindText(entry.value.kind)),
                   kSweepForm);
    return values;
}

}  // namespace

void ReadSet(const std::string &file, const SPlanNode &node, std::vector<SPlanSetting> &settings,
             CPlanErrors &errors)
{
    if (node.kind != EPlanNode::Map)
        errors.Add(file, node.place, "\"set\" is " + KindText(node.kind),
                   "a map of members and values");
    for (const SPlanEntry &entry : node.entries) {
        const SPlanNode &value = entry.value;
        if (value.kind == EPlanNode::Text)
            settings.push_back(
                {{Trimmed(entry.key.text), entry.key.place}, {Trimmed(value.text), value.place}});
        else
            errors.Add(file, value.place,
                       "the value of " + Quoted(entry.key.text) + " is " + KindText(value.kind),
                       kSetForm);
    }
}

void ReadSweep(const std::string &file, const SPlanNode &node, std::vector<SPlanSweep> &sweeps,
               CPlanErrors &errors)
{
    if (node.kind != EPlanNode::Map)
        errors.Add(file, node.place, "\"sweep\" is " + KindText(node.kind),
                   "a map of members and lists");
    std::size_t count = 1;
    for (const SPlanEntry &entry : node.entries) {
        SPlanSweep sweep{{Trimmed(entry.key.text), entry.key.place},
                         ReadValues(file, entry, errors)};
        if (sweep.values.empty())
            continue;
        if (sweep.values.size() > kMostCombinations / count) {
            errors.Add(file, node.place, "the sweep has too many combinations",
                       std::to_string(kMostCombinations) + " at most");
            return;
        }
        count *= sweep.values.size();
        sweeps.push_back(std::move(sweep));
    }
}
