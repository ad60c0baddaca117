#include "Operations/CalCells.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr int kUnitsADb = 32;
constexpr int kDbUnitDecimals = 3125;  // 1/32 in the fifth decimal
constexpr int kDecimals = 5;
constexpr int kUnitsAVolt = 10;
// Far above every field, so that a product of it still fits.
constexpr double kGreatest = 1e12;

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t";
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    text.remove_prefix(first);
    text.remove_suffix(text.size() - 1 - text.find_last_not_of(kBlanks));
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);  // the parser knows no plus
    return text;
}

// The leading number; 0 when there is none.
template <typename T>
std::errc Parse(std::string_view text, T &value)
{
    text = Trimmed(text);
    value = 0;
    return std::from_chars(text.data(), text.data() + text.size(), value).ec;
}

int64_t ParseNumber(std::string_view text)
{
    int64_t value = 0;
    if (Parse(text, value) == std::errc::result_out_of_range)
        value = Trimmed(text)[0] == '-' ? std::numeric_limits<int64_t>::min()
                                        : std::numeric_limits<int64_t>::max();
    return value;
}

int64_t Scaled(double value, int units)
{
    return static_cast<int64_t>(std::trunc(std::clamp(value, -kGreatest, kGreatest) * units));
}

int64_t ParseDb(std::string_view text)
{
    double value = 0;
    Parse(text, value);
    return std::isnan(value) ? 0 : Scaled(value, kUnitsADb);
}

const char *ParseVolt(std::string_view text, int64_t &value)
{
    text = Trimmed(text);
    text.remove_suffix(text.empty() ? 0 : 1);  // the unit
    double volts = 0;
    const std::errc outcome = Parse(text, volts);
    if (outcome == std::errc::result_out_of_range)
        return "stod argument out of range";
    if (outcome != std::errc() || std::isnan(volts))
        return "invalid stod argument";
    value = Scaled(volts, kUnitsAVolt);
    return nullptr;
}

void AppendDb(std::string &text, int64_t value, bool lone)
{
    const int64_t magnitude = std::abs(value);
    const std::string decimals = std::to_string(magnitude % kUnitsADb * kDbUnitDecimals);
    if (value < 0)
        text += '-';
    text += std::to_string(magnitude / kUnitsADb);
    text += '.';
    text.append(kDecimals - decimals.size(), '0');
    text += decimals;
    if (lone)
        text += '0';
}

}  // namespace

int64_t CCalCell::Get() const
{
    return std::visit([](const auto *field) { return static_cast<int64_t>(*field); }, m_field);
}

void CCalCell::Set(int64_t value)
{
    std::visit(
        [value](auto *field) {
            using Field = std::remove_reference_t<decltype(*field)>;
            using Limits = std::numeric_limits<Field>;
            *field = static_cast<Field>(std::clamp<int64_t>(value, Limits::min(), Limits::max()));
        },
        m_field);
}

void AppendCalValue(std::string &text, ECalValue kind, int64_t value, bool lone)
{
    switch (kind) {
    case ECalValue::Number:
        text += std::to_string(value);
        break;
    case ECalValue::Db:
        AppendDb(text, value, lone);
        break;
    case ECalValue::Volt:
        text += std::to_string(value / kUnitsAVolt);
        text += '.';
        text += std::to_string(value % kUnitsAVolt);
        text += 'V';
        break;
    }
}

const char *ParseCalValue(ECalValue kind, std::string_view text, int64_t &value)
{
    value = 0;
    switch (kind) {
    case ECalValue::Number:
        value = ParseNumber(text);
        break;
    case ECalValue::Db:
        value = ParseDb(text);
        break;
    case ECalValue::Volt:
        return ParseVolt(text, value);
    }
    return nullptr;
}

bool TakeListItem(std::string_view &list, std::string_view &item)
{
    if (list.empty())
        return false;
    const size_t comma = list.find(',');
    item = list.substr(0, comma);
    list = comma == std::string_view::npos ? std::string_view() : list.substr(comma + 1);
    return true;
}
