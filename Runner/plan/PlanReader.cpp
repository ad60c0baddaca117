#include "Runner/plan/PlanReader.h"

#include <map>

#include "Runner/plan/ExpectReader.h"
#include "Runner/plan/MapReader.h"
#include "Runner/plan/SettingReader.h"
#include "Runner/plan/YamlTree.h"

namespace {

constexpr char kVersion[] = "1";
constexpr char kButtons[] = "a list of buttons, such as [Start]";

// A file in the output folder: a bare name, so that nothing is written anywhere else.
bool IsBareName(const std::string &name)
{
    return name.find('/') == std::string::npos && name.find('\\') == std::string::npos &&
           name[0] != '.' && name.size() <= 200;
}

void CheckExport(CMapReader &map, const SPlanStep &step)
{
    constexpr const char *kReports[] = {"results.jsonl", "results.csv", "junit.xml", "report.html"};
    if (!IsBareName(step.exportFile->text))
        map.Complain(step.exportFile->place, "\"export\" is " + Quoted(step.exportFile->text),
                     "a file name without folders; it lies in the output folder");
    for (const char *report : kReports)
        if (step.exportFile->text == report)
            map.Complain(step.exportFile->place, Quoted(report) + " is a report's name");
}

void CheckSweptAndSet(CMapReader &map, const SPlanStep &step)
{
    for (const SPlanSetting &setting : step.set)
        for (const SPlanSweep &sweep : step.sweep)
            if (sweep.key.text == setting.key.text)
                map.Complain(setting.key.place,
                             Quoted(setting.key.text) +
                                 " is swept by this step, and set again behind it");
}

SPlanStep ReadStep(const std::string &file, const SPlanNode &node, CPlanErrors &errors)
{
    CMapReader map(file, "a step", node, errors);
    SPlanStep step;
    step.name = map.NeededText("step");
    step.page = map.NeededText("page");
    step.settings = map.Text("settings");
    if (const SPlanNode *sweep = map.Node("sweep"))
        ReadSweep(file, *sweep, step.sweep, errors);
    if (const SPlanNode *set = map.Node("set"))
        ReadSet(file, *set, step.set, errors);
    step.press = map.Texts("press", kButtons);
    if (const SPlanNode *wait = map.Node("wait"))
        step.wait = ReadWait(file, *wait, errors);
    step.then = map.Texts("then", kButtons);
    if (const SPlanNode *expect = map.Node("expect"))
        ReadExpect(file, *expect, step, errors);
    step.exportFile = map.Text("export");
    step.timeout = map.Duration("timeout").value_or(step.timeout);
    map.Done();
    if (step.exportFile)
        CheckExport(map, step);
    CheckSweptAndSet(map, step);
    return step;
}

void ReadSteps(const std::string &file, const SPlanNode &node, SPlan &plan, CPlanErrors &errors)
{
    if (node.kind != EPlanNode::List || node.items.empty())
        return errors.Add(file, node.place,
                          "\"steps\" is " +
                              (node.kind == EPlanNode::List ? "empty" : KindText(node.kind)),
                          "a list of steps");
    if (node.items.size() > kMostSteps)
        return errors.Add(file, node.items[kMostSteps].place, "there are too many steps",
                          std::to_string(kMostSteps) + " at most");
    std::map<std::string, int> lines;
    std::size_t combinations = 0;
    for (const SPlanNode &item : node.items) {
        SPlanStep step = ReadStep(file, item, errors);
        const auto [other, isNew] = lines.emplace(step.name.text, step.name.place.line);
        if (!isNew && !step.name.text.empty())
            errors.Add(file, step.name.place,
                       "the step " + Quoted(step.name.text) + " is there twice, also in line " +
                           std::to_string(other->second));
        combinations += CombinationCount(step);
        plan.steps.push_back(std::move(step));
    }
    if (combinations > kMostCases)
        errors.Add(file, node.place, "the steps have too many combinations",
                   std::to_string(kMostCases) + " at most");
}

// The plan's own values of its parameters; the key is left out of what follows.
void ReadDefaults(const std::string &file, SPlanNode &tree, CDefines &defines, CPlanErrors &errors)
{
    for (SPlanEntry &entry : tree.entries) {
        if (entry.key.text != "define")
            continue;
        if (entry.value.kind != EPlanNode::Map)
            errors.Add(file, entry.value.place, "\"define\" is " + KindText(entry.value.kind),
                       "a map of names and values");
        for (const SPlanEntry &define : entry.value.entries) {
            if (!IsDefineName(define.key.text))
                errors.Add(file, define.key.place, Quoted(define.key.text) + " is no name",
                           "letters, digits and _, not a digit first");
            if (define.value.kind != EPlanNode::Text)
                errors.Add(file, define.value.place,
                           "the value of " + Quoted(define.key.text) + " is " +
                               KindText(define.value.kind),
                           "a text or number");
            defines.AddDefault(define.key.text, define.value.text);
        }
        entry.value = {.kind = EPlanNode::Map,
                       .place = entry.value.place,
                       .text = {},
                       .isBroken = false,
                       .items = {},
                       .entries = {}};
    }
}

}  // namespace

std::optional<SPlan> ReadPlanText(const std::string &file, const std::string &text,
                                  CDefines &defines, CPlanErrors &errors)
{
    const std::size_t before = errors.Count();
    std::optional<SPlanNode> tree = ReadYaml(file, text, errors);
    if (!tree)
        return std::nullopt;
    ReadDefaults(file, *tree, defines, errors);
    defines.Apply(file, *tree, errors);

    CMapReader map(file, "a plan", *tree, errors);
    SPlan plan;
    plan.file = file;
    const SPlacedText version = map.NeededText("quorlin");
    if (!version.text.empty() && version.text != kVersion)
        map.Complain(version.place, "the plan's version is " + Quoted(version.text), kVersion);
    plan.name = map.NeededText("plan");
    map.Node("define");
    if (const SPlanNode *transmit = map.Node("transmit")) {
        CMapReader limits(file, "\"transmit\"", *transmit, errors);
        limits.NeededText("max_dbm");
        plan.maxDbm = limits.Number("max_dbm");
        limits.Done();
    }
    const SPlanNode *steps = map.Node("steps");
    map.Done();
    if (steps)
        ReadSteps(file, *steps, plan, errors);
    else if (map.IsMap())
        map.Complain(tree->place, "a plan has no \"steps\"");
    errors.Sort(before);
    return errors.Count() == before ? std::optional(plan) : std::nullopt;
}

std::optional<SPlan> ReadPlan(const std::string &file, CDefines &defines, CPlanErrors &errors)
{
    const std::optional<std::string> text = ReadText(file, errors);
    return text ? ReadPlanText(file, *text, defines, errors) : std::nullopt;
}
