// Calibration data as a factory would have left it: made from the profile, the same on every
// machine.
#pragma once

#include "Simulator/flash/FlashImage.h"

// A record for every place of the route tables. No locks.
SFlashImage CalibratedFlash(const SProfile &profile);
