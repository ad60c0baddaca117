// The profile's "calibration" key: the content of the flash without a file. Used by
// ParseProfile alone; failures are std::runtime_error that name the place.
#pragma once

#include "Simulator/basis/JsonReader.h"
#include "Simulator/profile/Profile.h"

// A missing key, in it or whole, leaves the defaults of SProfileCalibration.
void ReadCalibration(CJsonReader &reader, SProfile &profile);
