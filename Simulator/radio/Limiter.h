// What saturates: straight below its full scale, flat above it.
//
//   Limited(-20.0, -8.0, 3.0)    // -20 dBm
//   Limited(10.0, -8.0, 3.0)     // -8 dBm
#pragma once

#include <cmath>

// The model of Rapp ("Effects of HPA-nonlinearity on a 4-DPSK/OFDM-signal", 1991) over powers in dB;
// a greater knee is a sharper bend.
inline double Limited(double power, double fullScale, double knee)
{
    return power -
           10.0 / knee * std::log10(1.0 + std::pow(10.0, knee * (power - fullScale) / 10.0));
}
