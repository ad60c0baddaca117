#include "Trace/lines/Utf8.h"

#include <cstdint>

namespace {

// Characters of a length: their first byte, and what the second may be. The others are 80 to bf.
struct SUtf8Row
{
    uint8_t first;
    uint8_t last;
    uint8_t secondFirst;
    uint8_t secondLast;
    std::size_t length;
};

constexpr SUtf8Row kUtf8Rows[] = {
    {.first = 0xc2, .last = 0xdf, .secondFirst = 0x80, .secondLast = 0xbf, .length = 2},
    {.first = 0xe0, .last = 0xe0, .secondFirst = 0xa0, .secondLast = 0xbf, .length = 3},
    {.first = 0xe1, .last = 0xec, .secondFirst = 0x80, .secondLast = 0xbf, .length = 3},
    {.first = 0xed, .last = 0xed, .secondFirst = 0x80, .secondLast = 0x9f, .length = 3},
    {.first = 0xee, .last = 0xef, .secondFirst = 0x80, .secondLast = 0xbf, .length = 3},
    {.first = 0xf0, .last = 0xf0, .secondFirst = 0x90, .secondLast = 0xbf, .length = 4},
    {.first = 0xf1, .last = 0xf3, .secondFirst = 0x80, .secondLast = 0xbf, .length = 4},
    {.first = 0xf4, .last = 0xf4, .secondFirst = 0x80, .secondLast = 0x8f, .length = 4},
};

bool IsIn(char character, uint8_t first, uint8_t last)
{
    const auto code = static_cast<uint8_t>(character);
    return first <= code && code <= last;
}

bool Begins(std::string_view text, const SUtf8Row &row)
{
    if (text.size() < row.length || !IsIn(text[0], row.first, row.last) ||
        !IsIn(text[1], row.secondFirst, row.secondLast))
        return false;
    for (std::size_t i = 2; i < row.length; ++i) {
        if (!IsIn(text[i], 0x80, 0xbf))
            return false;
    }
    return true;
}

}  // namespace

std::size_t Utf8Length(std::string_view text)
{
    if (text.empty())
        return 0;
    if (IsIn(text[0], 0, 0x7f))
        return 1;
    for (const SUtf8Row &row : kUtf8Rows) {
        if (Begins(text, row))
            return row.length;
    }
    return 0;
}
