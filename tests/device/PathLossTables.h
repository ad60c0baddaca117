// The tables of the RX path loss page, by the numbers of their groups, and the page as most of its tests
// begin: shown, and read.
#pragma once

#include "tests/device/CalibrationSession.h"

inline constexpr int kMain = 2;  // groups of the type 1 tables
inline constexpr int kDiv = 3;
inline constexpr int kFrequency = 4;
inline constexpr int kPartialOn = 5;
inline constexpr int kGainMain = 6;
inline constexpr int kGainDiv = 7;

inline bool IsReady(CCalibrationSession &session)
{
    return session.ShowAndWait() && session.Run(kRead);
}
