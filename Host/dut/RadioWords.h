// The state of the simulated DUT's radio in words.
//
//     RadioWords(state)    // "Radio: Single Tone TX, n1, 1950.000 MHz, 23 dBm"
//     RunningWords(state)  // "Running for 0:12, route 1, 22.8 dBm at the connector"
#pragma once

#include <QString>

#include "Simulator/VondSim.h"

QString RadioWords(const SVondSimRadioState &state);
// Empty for an idle radio.
QString RunningWords(const SVondSimRadioState &state);
