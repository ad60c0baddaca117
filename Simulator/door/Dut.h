// The simulated DUT: what its profile says and what has changed since, radio, flash, faults, and the
// scenario that acts on them. No lock: CSimulator keeps calls apart.
//
//   dut.PutProfile(profile, CFlash(path));
//   dut.PutScenario(ParseScenario(text, "text"));
//   dut.OnCall(function);                          // before the call is carried out
#pragma once

#include <optional>

#include "Simulator/faults/FaultSet.h"
#include "Simulator/flash/FlashCalibration.h"
#include "Simulator/profile/Profile.h"
#include "Simulator/radio/Radio.h"
#include "Simulator/scenario/ScenarioRun.h"

struct SDut
{
    SProfile profile;  // its radio and plug are those in force
    CRadio radio;
    CFlash flash;
    CFaultSet faults;
    CScenarioRun scenario;
    SProfileRadio ownRadio;  // the profile's
    bool isOwnPlugged = true;

    // What the flash does to the radio.
    CFlashCalibration Calibration() { return {profile, flash}; }
    // Without a plug it answers no call; the flash stays, the radio is off.
    void LosePower();
    void SetPlugged(bool isPlugged);
    // Keys over the radio in force. Throws std::runtime_error and changes nothing.
    void ChangeRadio(const nlohmann::json &changes);
    void SetOwnRadio() { profile.radio = ownRadio; }

    // The scenario in force begins anew.
    void PutProfile(SProfile fresh, CFlash freshFlash);
    // Radio and plug go back to the profile's first. None takes the old one away.
    void PutScenario(std::optional<SScenario> fresh);
    void AddStep(const SScenarioStep &step) { Take(scenario.Add(step, faults)); }
    // The steps that take place on a call.
    void OnCall(const SFunction &function) { Take(scenario.OnCall(function)); }

private:
    void Take(const CScenarioRun::Due &due);
    void BeginScenario(const CScenarioRun::Due &due);
};
