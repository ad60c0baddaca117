// Calibration data as a factory would have left it: made from the profile, the same on every
// machine.
#pragma once

#include "Simulator/flash/FlashImage.h"

// A record for every place of the route tables. No locks.
SFlashImage CalibratedFlash(const SProfile &profile);
// No rule of the profile leaves a record of the flash empty.
bool IsFullyCalibrated(const SProfile &profile);
// The losses and gains that the DUT really has: the same, also where the profile leaves the flash
// empty.
SFlashImage TrueFlash(const SProfile &profile);
// What a transmitter without any calibration data goes by.
SAptBlock UncalibratedApt();
