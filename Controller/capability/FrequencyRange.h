// The limits of a frequency member: one entry of its valuePair. kHz; any thread.
//
//   FrequencyRange(1920000, 1980000, true);
//   // {"min": 0, "max": 1980000, "rangeCheck": "0,1920000~1980000"}
#pragma once

#include <QJsonObject>

// withRangeCheck: 0, which stands for "not set", is accepted beside low to high.
QJsonObject FrequencyRange(int low, int high, bool withRangeCheck);
