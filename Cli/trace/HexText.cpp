#include "Cli/trace/HexText.h"

#include <cctype>
#include <charconv>
#include <stdexcept>
#include <string>

std::vector<uint8_t> BytesOfHex(std::string_view text)
{
    std::string digits;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto sign = static_cast<unsigned char>(text[i]);
        if (std::isspace(sign) != 0)
            continue;
        if (std::isxdigit(sign) == 0)
            throw std::runtime_error("has a sign that is no hexadecimal digit, at " +
                                     std::to_string(i + 1));
        digits += text[i];
    }
    if (digits.size() % 2 != 0)
        throw std::runtime_error("has an odd number of digits");
    std::vector<uint8_t> bytes(digits.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char *const first = digits.data() + 2 * i;
        std::from_chars(first, first + 2, bytes[i], 16);
    }
    return bytes;
}
