#include "Runner/plan/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace {

struct SUnit
{
    std::string_view name;
    double ms;
};

// A longer name stands before one that it ends in.
constexpr std::array<SUnit, 4> kUnits = {{
    {.name = "ms", .ms = 1},
    {.name = "min", .ms = 60e3},
    {.name = "s", .ms = 1e3},
    {.name = "h", .ms = 3600e3},
}};

constexpr std::size_t kMostDigits = 15;  // so that a sum of two fits

// digits * 10^-places
struct SDecimal
{
    int64_t digits = 0;
    int places = 0;
};

std::optional<SDecimal> ParseDecimal(const std::string &text)
{
    const bool isNegative = !text.empty() && text[0] == '-';
    SDecimal decimal;
    std::size_t count = 0;
    bool isBehindPoint = false;
    for (std::size_t i = isNegative ? 1 : 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.' && !isBehindPoint && count > 0) {
            isBehindPoint = true;
            continue;
        }
        if (c < '0' || c > '9' || ++count > kMostDigits)
            return std::nullopt;
        decimal.digits = decimal.digits * 10 + (c - '0');
        decimal.places += isBehindPoint ? 1 : 0;
    }
    if (count == 0 || text.back() == '.')
        return std::nullopt;
    if (isNegative)
        decimal.digits = -decimal.digits;
    return decimal;
}

// The same value with more places; nothing if it gets too long.
std::optional<int64_t> Scaled(SDecimal decimal, int places)
{
    constexpr int64_t kMost = 999'999'999'999'999'999 / 10;
    for (; decimal.places < places; ++decimal.places) {
        if (std::abs(decimal.digits) > kMost / 10)
            return std::nullopt;
        decimal.digits *= 10;
    }
    return decimal.digits;
}

std::string DecimalText(int64_t digits, int places)
{
    std::string text = std::to_string(std::abs(digits));
    const auto wanted = static_cast<std::size_t>(places) + 1;
    if (text.size() < wanted)
        text.insert(0, wanted - text.size(), '0');
    if (places > 0)
        text.insert(text.size() - static_cast<std::size_t>(places), 1, '.');
    return (digits < 0 ? "-" : "") + text;
}

}  // namespace

std::optional<double> ParseNumber(const std::string &text)
{
    double number = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<int> ParseCount(const std::string &text, int most)
{
    int count = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc() || stop != end || count < 0 || count > most || text[0] == '-')
        return std::nullopt;
    return count;
}

std::optional<std::chrono::milliseconds> ParseDuration(const std::string &text)
{
    for (const SUnit &unit : kUnits) {
        if (!std::string_view(text).ends_with(unit.name))
            continue;
        std::string number = text.substr(0, text.size() - unit.name.size());
        while (!number.empty() && number.back() == ' ')
            number.pop_back();
        const std::optional<double> value = ParseNumber(number);
        const double most = std::chrono::duration<double, std::milli>(kLongestDuration).count();
        if (!value || *value < 0 || *value * unit.ms > most)
            return std::nullopt;
        return std::chrono::milliseconds(std::llround(*value * unit.ms));
    }
    return std::nullopt;
}

std::optional<std::vector<std::string>> ExpandRange(const std::string &from, const std::string &to,
                                                    const std::string &step, std::string &error)
{
    const std::optional<SDecimal> first = ParseDecimal(from), last = ParseDecimal(to),
                                  width = ParseDecimal(step);
    error = "from, to and step are decimal numbers of at most 15 digits";
    if (!first || !last || !width)
        return std::nullopt;
    const int shown = std::max(first->places, width->places);
    const int places = std::max(shown, last->places);
    const std::optional<int64_t> begin = Scaled(*first, places), end = Scaled(*last, places),
                                 stride = Scaled(*width, places);
    if (!begin || !end || !stride)
        return std::nullopt;
    error = "the step does not lead from \"from\" to \"to\"";
    if (*stride == 0 || (*end != *begin && (*end > *begin) != (*stride > 0)))
        return std::nullopt;
    const int64_t steps = (*end - *begin) / *stride;
    error = "the sweep has more than " + std::to_string(kMostSweepValues) + " values";
    if (steps < 0 || steps >= static_cast<int64_t>(kMostSweepValues))
        return std::nullopt;
    int64_t cut = 1;
    for (int i = shown; i < places; ++i)
        cut *= 10;
    std::vector<std::string> texts;
    for (int64_t i = 0; i <= steps; ++i)
        texts.push_back(DecimalText((*begin + i * *stride) / cut, shown));
    return texts;
}
