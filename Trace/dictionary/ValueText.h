// A value in words, for a person: in its unit, with its name. The raw number stands in parentheses
// where it cannot be told otherwise.
//
//   ValueText(value)   // "-10.5 dBm", "3500000 kHz", "n78", "30 kHz (1)", "0, 2 (0x5)", "TX_0"
//
// Fractions are exact. A number that has no name stands alone. An item word: "NR (0x40)", "1", or
// "absent". Reserved bytes are hexadecimal digits. Texts are as they are, bytes that are no printable
// ASCII as \x and two digits.
#pragma once

#include <string>

#include "Trace/dictionary/Decode.h"

std::string ValueText(const SFieldValue &value);
// Two lower-case digits a byte.
std::string HexDigits(std::span<const uint8_t> bytes);
