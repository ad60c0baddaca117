// The profile's "radio" key: the test set at the DUT's connectors and the DUT's analog facts. Used
// by ParseProfile alone; failures are std::runtime_error that name the place.
#pragma once

#include "Simulator/basis/JsonReader.h"
#include "Simulator/profile/Profile.h"

// A missing key, in it or whole, leaves the defaults of SProfileRadio.
void ReadRadio(CJsonReader &reader, SProfile &profile);
