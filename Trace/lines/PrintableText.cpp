#include "Trace/lines/PrintableText.h"

#include <algorithm>
#include <cstdint>

#include "Trace/lines/Utf8.h"

namespace {

// Of ASCII, and those of two bytes from U+0080 to U+009F.
bool IsControl(std::string_view character)
{
    const auto first = static_cast<uint8_t>(character[0]);
    if (character.size() == 1)
        return first < ' ' || first == 0x7f;
    return first == 0xc2 && static_cast<uint8_t>(character[1]) < 0xa0;
}

}  // namespace

std::string PrintableText(std::string_view text)
{
    static constexpr char kHexDigits[] = "0123456789abcdef";
    std::string printable;
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        text.remove_prefix(character.size());
        if (length > 0 && !IsControl(character)) {
            printable += character;
            continue;
        }
        for (const char sign : character) {
            const auto byte = static_cast<uint8_t>(sign);
            printable += {'\\', 'x', kHexDigits[byte >> 4], kHexDigits[byte & 15]};
        }
    }
    return printable;
}
