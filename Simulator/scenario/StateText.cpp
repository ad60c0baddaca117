#include "Simulator/scenario/StateText.h"

#include <vector>

#include "Simulator/profile/ProfileRadio.h"

using nlohmann::json;

namespace {

// The merge patch (RFC 7396) that leads from one object to the other.
json PatchBetween(const json &from, const json &to)
{
    json patch = json::object();
    for (const auto &[key, value] : to.items()) {
        if (!from.contains(key))
            patch[key] = value;
        else if (value.is_object() && from[key].is_object()) {
            const json part = PatchBetween(from[key], value);
            if (!part.empty())
                patch[key] = part;
        } else if (from[key] != value)
            patch[key] = value;
    }
    for (const auto &[key, value] : from.items()) {
        if (!to.contains(key))
            patch[key] = nullptr;
    }
    return patch;
}

std::string Quoted(const std::string &text)
{
    return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

// Null for a fault that is not told.
std::string FaultStep(const SFaultRow &row)
{
    if (row.source == EFaultSource::Profile || !row.isOn || row.isOver)
        return {};
    const std::string when = row.when ? "\"when\": " + row.when->text + ", " : std::string();
    return "{" + when + "\"fault\": " + row.fault.text + "}";
}

std::vector<std::string> StepTexts(const SStateToTell &state)
{
    std::vector<std::string> steps;
    const json radio = PatchBetween(RadioJson(state.ownRadio), RadioJson(state.radio));
    if (!radio.empty())
        steps.push_back("{\"radio\": " + radio.dump() + "}");
    if (state.isPlugged != state.isOwnPlugged)
        steps.push_back(state.isPlugged ? "{\"plugged\": true}" : "{\"plugged\": false}");
    for (std::size_t i = 0; i < state.faults.Count(); ++i) {
        std::string step = FaultStep(state.faults.Row(i));
        if (!step.empty())
            steps.push_back(std::move(step));
    }
    for (const SScenarioStep *step : state.scenario.Pending())
        steps.push_back(step->text);
    return steps;
}

}  // namespace

std::string StateText(const SStateToTell &state)
{
    std::string text =
        "{\n    \"name\": " + Quoted(state.name) + ",\n    \"about\": " + Quoted(state.about) +
        ",\n    \"seed\": " + std::to_string(state.scenario.Seed()) + ",\n    \"steps\": [";
    const char *separator = "\n        ";
    for (const std::string &step : StepTexts(state)) {
        text += separator + step;
        separator = ",\n        ";
    }
    return text + "\n    ]\n}\n";
}
