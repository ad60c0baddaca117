// A scenario's text of what is now: radio, plug, faults, and the steps that may still come.
//
//   const std::string text = StateText({.name = "my DUT", .own = &own, .now = &profile, ...});
#pragma once

#include <string>

#include "Simulator/profile/Profile.h"
#include "Simulator/scenario/ScenarioRun.h"

struct SStateToTell
{
    std::string name;
    std::string about;
    const SProfileRadio &ownRadio;  // the profile's
    const SProfileRadio &radio;     // in force
    bool isOwnPlugged;
    bool isPlugged;
    const CFaultSet &faults;
    const CScenarioRun &scenario;
};

std::string StateText(const SStateToTell &state);
