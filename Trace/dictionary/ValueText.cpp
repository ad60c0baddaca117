#include "Trace/dictionary/ValueText.h"

#include <charconv>
#include <iterator>

#include "Vond/VondCapabilityRecords.h"

namespace {

constexpr char kDigits[] = "0123456789abcdef";

std::string HexNumber(uint32_t number)
{
    char digits[8];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number, 16);
    std::string text = "0x";
    text.append(digits, end.ptr);
    return text;
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char sign : text) {
        const auto byte = static_cast<uint8_t>(sign);
        if (byte >= ' ' && byte < 0x7f && sign != '\\')
            escaped += sign;
        else
            escaped += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return escaped;
}

const SValueName *NameOf(std::span<const SValueName> names, int64_t value)
{
    for (const SValueName &row : names) {
        if (row.value == value)
            return &row;
    }
    return nullptr;
}

// number / perUnit, with as many decimals as it takes.
std::string Fraction(int64_t number, int64_t perUnit)
{
    const int64_t size = number < 0 ? -number : number;
    std::string text = number < 0 ? "-" : "";
    text += std::to_string(size / perUnit);
    int64_t rest = size % perUnit;
    if (rest != 0)
        text += '.';
    while (rest != 0) {
        rest *= 10;
        text += static_cast<char>('0' + rest / perUnit);
        rest %= perUnit;
    }
    return text;
}

std::string MaskText(uint32_t mask, std::span<const SValueName> names)
{
    std::string text;
    for (int bit = 0; bit < 32; ++bit) {
        if ((mask >> bit & 1u) == 0)
            continue;
        if (!text.empty())
            text += ", ";
        const SValueName *const row = NameOf(names, bit);
        text += row != nullptr ? std::string(row->name) : std::to_string(bit);
    }
    if (text.empty())
        return "none";
    text.append(" (").append(HexNumber(mask)).append(")");
    return text;
}

std::string BandText(int64_t band)
{
    if (band == 0)
        return "none";
    std::string text = "n";
    text += std::to_string(band);
    return text;
}

std::string ItemText(uint32_t word, const SField &field)
{
    if (!VondItemValid(word))
        return "absent";
    const uint32_t item = VondItemValue(word) & field.itemMask;
    return field.bits.empty() ? std::to_string(item) : MaskText(item, field.bits);
}

std::string NumberText(int64_t number, const SField &field)
{
    std::string text;
    if (const SValueName *const row = NameOf(field.values, number)) {
        text.append(row->name).append(" (").append(std::to_string(number)).append(")");
        return text;
    }
    text = Fraction(number, field.unit.perUnit);
    if (!field.unit.name.empty())
        text.append(" ").append(field.unit.name);
    return text;
}

}  // namespace

std::string HexDigits(std::span<const uint8_t> bytes)
{
    std::string digits;
    digits.reserve(2 * bytes.size());
    for (const uint8_t byte : bytes) {
        digits += kDigits[byte >> 4];
        digits += kDigits[byte & 15];
    }
    return digits;
}

std::string ValueText(const SFieldValue &value)
{
    const SField &field = *value.field;
    if (field.at.type == EFieldType::Text)
        return Escaped(value.text);
    if (field.at.type == EFieldType::Bytes)
        return HexDigits(value.bytes);
    const auto word = static_cast<uint32_t>(value.number);
    switch (field.form) {
    case EForm::Band:
        return BandText(value.number);
    case EForm::Mask:
        return MaskText(word, field.bits);
    case EForm::ItemWord:
        return ItemText(word, field);
    default:
        return NumberText(value.number, field);
    }
}
