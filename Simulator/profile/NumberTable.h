// Numbers by "default" and by name in a profile, such as {"default": -65, "n78": -68}: a name is a
// prefix and a number of up to 65535 without leading zeros. Failures are std::runtime_error that
// name the place.
#pragma once

#include <map>

#include "Simulator/basis/JsonReader.h"

struct SNumberTable
{
    const char *key;
    std::string prefix;  // of a name, before its number
    double least;
    double most;
};

// A missing key leaves both as they are.
void ReadNumberTable(CJsonReader &reader, const SNumberTable &table, double &fallback,
                     std::map<uint16_t, double> &numbers);
// The same for whole numbers.
void ReadNumberTable(CJsonReader &reader, const SNumberTable &table, std::optional<int> &fallback,
                     std::map<uint16_t, int> &numbers);
