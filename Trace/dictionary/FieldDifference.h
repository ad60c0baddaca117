// In which fields two records of a function differ, with both values in words.
//
//   for (const SFieldDifference &field : RequestDifferences(rssi, one, other))
//       std::cout << field.name << ": " << field.one << ", " << field.other << '\n';
//   // gain.single.mainRfGain: -10.5 dB, 3 dB
//
// Fields come in the order of the first record's bytes, then what only the other has. A field that one
// of the two lacks, since its record is cut or its union has the other layout, is "absent" there. Records
// of two lengths differ in "(size)"; "(rest)" are bytes behind their ends, or of a field that is cut.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "Trace/dictionary/Functions.h"

struct SFieldDifference
{
    std::string name;
    std::string one;
    std::string other;
    bool isReading = false;
};

struct SAnswerBytes
{
    std::span<const uint8_t> bytes;
    std::span<const uint8_t> request;  // empty: not known
};

std::vector<SFieldDifference> RequestDifferences(const SFunction &function,
                                                 std::span<const uint8_t> one,
                                                 std::span<const uint8_t> other);
std::vector<SFieldDifference> AnswerDifferences(const SFunction &function, const SAnswerBytes &one,
                                                const SAnswerBytes &other);
