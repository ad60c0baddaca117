#include "Simulator/scenario/Scenario.h"

#include <algorithm>
#include <stdexcept>

#include "Simulator/basis/JsonReader.h"
#include "Simulator/basis/JsonText.h"
#include "Simulator/profile/ProfileRadio.h"
#include "Simulator/scenario/BuiltinScenarios.h"

using nlohmann::json;

namespace {

constexpr std::size_t kMostSteps = 1000;

const char *BuiltinText(std::string name)
{
    std::replace(name.begin(), name.end(), ' ', '-');
    for (std::size_t i = 0; const SBuiltinScenario *scenario = BuiltinScenario(i); ++i) {
        if (name == scenario->name)
            return scenario->text;
    }
    return nullptr;
}

std::string BuiltinNames()
{
    std::string names;
    for (std::size_t i = 0; const SBuiltinScenario *scenario = BuiltinScenario(i); ++i)
        names += (i == 0 ? "" : ", ") + std::string(scenario->name);
    return names;
}

// A step says by "when" on which call its fault fires.
SFault ReadStepFault(CJsonReader &reader, bool hasCondition)
{
    const std::string place = reader.Place("fault");
    SFault fault = ParseFault(reader.Take("fault"), place);
    if (hasCondition && (fault.nth != 0 || fault.probability))
        CJsonReader::Fail(place, "\"nth\" and \"probability\" cannot stand beside \"when\"");
    return fault;
}

SScenario ReadScenario(const json &whole)
{
    if (!whole.is_object())
        throw std::runtime_error("is not an object");
    SScenario scenario;
    CJsonReader reader(whole, "");
    scenario.name = reader.Text("name", 63);
    reader.Text("about", 1000, "");
    scenario.seed = reader.Integer<uint32_t>("seed", 0, UINT32_MAX, 1u);
    if (!reader.Has("steps"))
        CJsonReader::Fail("steps", "is missing");
    reader.Each("steps", kMostSteps, [&](const json &entry, const std::string &place) {
        scenario.steps.push_back(ParseStep(entry, place));
    });
    reader.Done();
    return scenario;
}

}  // namespace

std::string ReadScenarioText(const std::string &nameOrPath)
{
    if (const char *text = BuiltinText(nameOrPath))
        return text;
    return ReadTextFile(nameOrPath, "a scenario file",
                        "no such file, and none of the built-in scenarios " + BuiltinNames());
}

SScenario ParseScenario(const std::string &text, const std::string &source)
{
    try {
        SScenario scenario = ReadScenario(ParseJsonText(text));
        scenario.text = text;
        return scenario;
    } catch (const std::exception &error) {
        throw std::runtime_error(source + ": " + OneLine(error.what()));
    }
}

SScenarioStep ParseStep(const json &entry, const std::string &place)
{
    CJsonReader reader(entry, place);
    SScenarioStep step;
    step.text = entry.dump();
    if (reader.Has("when"))
        step.when = ReadWhen(reader.Take("when"), reader.Place("when"));
    if (reader.Has("fault"))
        step.fault = ReadStepFault(reader, step.when.has_value());
    if (reader.Has("radio")) {
        step.radio = reader.Take("radio");
        ChangedRadio({}, *step.radio, reader.Place("radio"));
    }
    if (reader.Has("plugged"))
        step.plugged = reader.Boolean("plugged");
    const int actions = step.fault.has_value() + step.radio.has_value() + step.plugged.has_value();
    if (actions != 1)
        CJsonReader::Fail(place, "needs one of \"fault\", \"radio\" and \"plugged\"");
    reader.Done();
    return step;
}
