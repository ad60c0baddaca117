#include "Simulator/door/Dut.h"

#include <utility>

#include "Simulator/profile/ProfileRadio.h"

void SDut::LosePower()
{
    profile.plugged = false;
    radio = CRadio(profile.radio.seed);
}

void SDut::SetPlugged(bool isPlugged)
{
    if (isPlugged)
        profile.plugged = true;
    else
        LosePower();
}

void SDut::ChangeRadio(const nlohmann::json &changes)
{
    profile.radio = ChangedRadio(profile.radio, changes);
    if (changes.contains("seed"))
        radio.Seed(profile.radio.seed);
}

void SDut::PutProfile(SProfile fresh, CFlash freshFlash)
{
    std::vector<SFault> own;
    for (const std::string &fault : fresh.faults)
        own.push_back(ParseFault(nlohmann::json::parse(fault), "faults"));
    profile = std::move(fresh);
    ownRadio = profile.radio;
    isOwnPlugged = profile.plugged;
    radio = CRadio(profile.radio.seed);
    flash = std::move(freshFlash);
    faults.SetProfileFaults(own);
    BeginScenario(scenario.Restart(faults));
}

void SDut::PutScenario(std::optional<SScenario> fresh)
{
    SetOwnRadio();
    if (profile.plugged != isOwnPlugged)
        SetPlugged(isOwnPlugged);
    BeginScenario(scenario.Start(std::move(fresh), faults));
}

void SDut::BeginScenario(const CScenarioRun::Due &due)
{
    if (scenario.IsThere())
        radio.Seed(scenario.Seed());
    Take(due);
}

void SDut::Take(const CScenarioRun::Due &due)
{
    for (const SScenarioStep *step : due) {
        if (step->radio)
            ChangeRadio(*step->radio);
        if (step->plugged)
            SetPlugged(*step->plugged);
    }
}
