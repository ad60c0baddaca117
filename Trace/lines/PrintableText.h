// A text of others as part of one line on a terminal: control characters, and bytes that are no UTF-8,
// as \x and two digits.
//
//   PrintableText("RSSI\n\x1b[31m")   // "RSSI\x0a\x1b[31m", with a backslash
#pragma once

#include <string>
#include <string_view>

std::string PrintableText(std::string_view text);
