// Bytes written as hexadecimal digits, as a person or a log has them: of either case, with white space
// between them.
//
//   BytesOfHex("4e 00 00 00")   // 78, 0, 0, 0
//
// Throws std::runtime_error: "has an odd number of digits".
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

std::vector<uint8_t> BytesOfHex(std::string_view text);
