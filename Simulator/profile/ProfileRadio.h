// The profile's "radio" key: the test set at the DUT's connectors and the DUT's analog facts. It can
// change while the DUT runs. Failures are std::runtime_error that name the place.
//
//   profile.radio = ChangedRadio(profile.radio, json::parse(R"({"levelDbm": {"n78": -90}})"));
#pragma once

#include "Simulator/basis/JsonReader.h"
#include "Simulator/profile/Profile.h"

// A missing key, in it or whole, leaves the defaults of SProfileRadio.
void ReadRadio(CJsonReader &reader, SProfile &profile);

// All keys of a radio, as a profile would have them.
nlohmann::json RadioJson(const SProfileRadio &radio);
// The radio with keys laid over it; a null removes one.
SProfileRadio ChangedRadio(const SProfileRadio &radio, const nlohmann::json &changes,
                           const std::string &place = "radio");
