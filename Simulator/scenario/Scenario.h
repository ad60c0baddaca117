// A scenario: what happens to the DUT, at once or on which call. The format is told in
// docs/simulated-dut.md.
//
// Strict: unknown keys, wrong types and limits, faults that their function can't show, and steps
// that do nothing or two things are refused. Failures are std::runtime_error with one line of text.
//
//   const SScenario scenario = ParseScenario(ReadScenarioText("weak-cell"), "weak-cell");
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Simulator/faults/FaultSet.h"

// Exactly one of fault, radio and plugged is there.
struct SScenarioStep
{
    std::optional<SWhen> when;  // none: at once
    std::optional<SFault> fault;
    std::optional<nlohmann::json> radio;  // keys of a profile's radio, found to be good
    std::optional<bool> plugged;
    std::string text;  // as it was given
};

struct SScenario
{
    std::string name;
    uint32_t seed = 1;
    std::vector<SScenarioStep> steps;
    std::string text;  // as it was given
};

// The text of a built-in scenario ("weak-cell", or "weak cell") or, when no built-in has that name,
// of the file at that path.
std::string ReadScenarioText(const std::string &nameOrPath);
// `source` opens the failure text.
SScenario ParseScenario(const std::string &text, const std::string &source);
SScenarioStep ParseStep(const nlohmann::json &json, const std::string &place);
