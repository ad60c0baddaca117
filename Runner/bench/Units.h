// The unit that a caption has in parentheses.
//
//   UnitOf("TX Power (dBm)");    // "dBm"
//   UnitOf("DL Freq.(1kHz)");    // "kHz"
//   UnitOf("Route(Type1 Only)"); // ""
#pragma once

#include <QString>

// One of dB, dBm, kHz, ms, %; empty: none of them.
QString UnitOf(const QString &caption);
