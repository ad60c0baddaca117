#include "Operations/calibration/CalPlainList.h"

namespace {

constexpr uint32_t kUnitsADb = 32;
constexpr uint32_t kUnitsAVolt = 10;
constexpr int kDecimals = 5;
constexpr uint32_t kDecimalScale = 100000;
// Digits that surely fit, with their scale.
constexpr ptrdiff_t kMostWholeDigits = 7;
constexpr ptrdiff_t kMostDigits = 18;

// Beyond 9 for what is no digit, the NUL at the end of a text among that.
uint32_t Digit(wchar_t c)
{
    return static_cast<uint32_t>(c) - static_cast<uint32_t>(L'0');
}

// Takes the digits of a whole number off the text, one at least; false when there are none or too
// many.
template <typename Number>
bool TakeDigits(const wchar_t *&at, ptrdiff_t most, Number &number)
{
    const wchar_t *const first = at;
    number = 0;
    for (uint32_t digit = Digit(*at); digit <= 9; digit = Digit(*++at)) {
        if (at - first == most)
            return false;
        number = number * 10 + digit;
    }
    return at != first;
}

bool TakeSign(const wchar_t *&at)
{
    const bool isNegative = *at == L'-';
    at += isNegative;
    return isNegative;
}

bool TakeNumber(const wchar_t *&at, int64_t &value)
{
    const bool isNegative = TakeSign(at);
    int64_t number = 0;
    if (!TakeDigits(at, kMostDigits, number))
        return false;
    value = isNegative ? -number : number;
    return true;
}

bool TakeDb(const wchar_t *&at, int64_t &value)
{
    const bool isNegative = TakeSign(at);
    uint32_t whole = 0;
    if (!TakeDigits(at, kMostWholeDigits, whole) || *at++ != L'.')
        return false;
    uint32_t decimals = 0;
    for (int i = 0; i < kDecimals; ++i) {
        const uint32_t digit = Digit(*at++);
        if (digit > 9)
            return false;
        decimals = decimals * 10 + digit;
    }
    const uint32_t units = whole * kUnitsADb + decimals * kUnitsADb / kDecimalScale;
    value = isNegative ? -int64_t(units) : units;
    return true;
}

bool TakeVolt(const wchar_t *&at, int64_t &value)
{
    uint32_t whole = 0;
    if (!TakeDigits(at, kMostWholeDigits, whole) || *at++ != L'.')
        return false;
    const uint32_t tenths = Digit(*at++);
    value = whole * kUnitsAVolt + tenths;
    return tenths <= 9 && *at++ == L'V';
}

template <typename Take>
std::optional<size_t> ReadList(const wchar_t *at, std::span<int64_t> values, Take take)
{
    size_t count = 0;
    while (*at && count < values.size()) {
        if (!take(at, values[count++]))
            return {};
        if (*at == L',')
            ++at;
        else if (*at)
            return {};
    }
    return count;
}

}  // namespace

std::optional<size_t> ReadPlainList(const wchar_t *text, ECalValue kind, std::span<int64_t> values)
{
    switch (kind) {
    case ECalValue::Number:
        return ReadList(text, values, TakeNumber);
    case ECalValue::Db:
        return ReadList(text, values, TakeDb);
    case ECalValue::Volt:
        return ReadList(text, values, TakeVolt);
    }
    return {};
}
