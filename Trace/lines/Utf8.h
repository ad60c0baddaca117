// UTF-8, one character at a time.
//
//   Utf8Length("\xc3\xa4 and more")   // 2
//   Utf8Length("\xff")                // 0: no character begins like this
#pragma once

#include <cstddef>
#include <string_view>

// Bytes of the first character; 0 where the text is empty, or does not begin with a character: a byte
// that stands alone, a character cut short, one written longer than needed, a surrogate.
std::size_t Utf8Length(std::string_view text);
