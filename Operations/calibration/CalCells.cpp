#include "Operations/calibration/CalCells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "Operations/calibration/CalPlainList.h"
#include "Support/WideText.h"

namespace {

constexpr int kUnitsADb = 32;
constexpr int kDbUnitDecimals = 3125;  // 1/32 in the fifth decimal
constexpr int kDecimals = 5;
// Sign, 19 digits, point, decimals, and a unit or comma.
constexpr size_t kMaxValueText = 32;
constexpr int kUnitsAVolt = 10;
// As many as the longest list of a record has.
constexpr size_t kMostPlainValues = 64;
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

int64_t ParseNumber(std::string_view text, bool &isNumber)
{
    int64_t value = 0;
    const std::errc outcome = Parse(text, value);
    isNumber = outcome != std::errc::invalid_argument;
    if (outcome == std::errc::result_out_of_range)
        value = Trimmed(text)[0] == '-' ? std::numeric_limits<int64_t>::min()
                                        : std::numeric_limits<int64_t>::max();
    return value;
}

int64_t Scaled(double value, int units)
{
    return static_cast<int64_t>(std::trunc(std::clamp(value, -kGreatest, kGreatest) * units));
}

int64_t ParseDb(std::string_view text, bool &isNumber)
{
    double value = 0;
    isNumber = Parse(text, value) == std::errc() && !std::isnan(value);
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

// The decimals of each 1/32 dB.
struct SDbDecimals
{
    char text[kUnitsADb][kDecimals] = {};

    constexpr SDbDecimals()
    {
        for (int unit = 0; unit < kUnitsADb; ++unit) {
            int rest = unit * kDbUnitDecimals;
            for (int i = kDecimals - 1; i >= 0; --i, rest /= 10)
                text[unit][i] = static_cast<char>('0' + rest % 10);
        }
    }
};
constexpr SDbDecimals kDbDecimals;

char *PutNumber(char *to, int64_t value)
{
    const auto narrow = static_cast<uint32_t>(value);  // is printed in half the time
    if (narrow == value)
        return std::to_chars(to, to + kMaxValueText, narrow).ptr;
    return std::to_chars(to, to + kMaxValueText, value).ptr;
}

char *PutDb(char *to, int64_t value, bool lone)
{
    const int64_t magnitude = std::abs(value);
    if (value < 0)
        *to++ = '-';
    to = PutNumber(to, magnitude / kUnitsADb);
    *to++ = '.';
    to = std::copy_n(kDbDecimals.text[magnitude % kUnitsADb], kDecimals, to);
    if (lone)
        *to++ = '0';
    return to;
}

char *PutVolt(char *to, int64_t value)
{
    to = PutNumber(to, value / kUnitsAVolt);
    *to++ = '.';
    to = PutNumber(to, value % kUnitsAVolt);
    *to++ = 'V';
    return to;
}

// to has room for kMaxValueText characters. The end of what was put.
char *PutValue(char *to, ECalValue kind, int64_t value, bool lone)
{
    switch (kind) {
    case ECalValue::Number:
        return PutNumber(to, value);
    case ECalValue::Db:
        return PutDb(to, value, lone);
    case ECalValue::Volt:
        return PutVolt(to, value);
    }
    return to;
}

// Takes the first value off a list; false when none is left.
bool TakeListItem(std::string_view &list, std::string_view &item)
{
    if (list.empty())
        return false;
    const size_t comma = list.find(',');
    item = list.substr(0, comma);
    list = comma == std::string_view::npos ? std::string_view() : list.substr(comma + 1);
    return true;
}

template <typename T>
void SetHeld(T &field, int64_t value)
{
    using Limits = std::numeric_limits<T>;
    field = static_cast<T>(std::clamp<int64_t>(value, Limits::min(), Limits::max()));
}

template <typename T>
T &FieldAt(T *first, size_t index, size_t distance)
{
    return *reinterpret_cast<T *>(reinterpret_cast<char *>(first) + index * distance);
}

}  // namespace

int64_t CCalCell::Get() const
{
    return std::visit([](const auto *field) { return static_cast<int64_t>(*field); }, m_field);
}

const void *CCalCell::Address() const
{
    return std::visit([](const auto *field) { return static_cast<const void *>(field); }, m_field);
}

void CCalCell::Set(int64_t value)
{
    std::visit([value](auto *field) { SetHeld(*field, value); }, m_field);
}

void CCalCells::AppendTo(std::string &text, ECalValue kind) const
{
    const size_t before = text.size();
    text.resize(before + m_count * kMaxValueText);
    char *const begin = text.data() + before;
    char *end = begin;
    std::visit(
        [&](auto *first) {
            for (size_t i = 0; i < m_count; ++i) {
                if (i > 0)
                    *end++ = ',';
                end = PutValue(end, kind, FieldAt(first, i, m_distance), m_count == 1);
            }
        },
        m_first);
    text.resize(before + static_cast<size_t>(end - begin));
}

const char *CCalCells::Read(std::string_view text, ECalValue kind, ICalCellWatch *watch) const
{
    return std::visit(
        [&](auto *first) -> const char * {
            std::string_view item;
            for (size_t i = 0; i < m_count; ++i) {
                int64_t value = 0;
                bool isNumber = true;
                const bool isAny = TakeListItem(text, item);
                if (isAny) {
                    if (const char *failure = ParseCalValue(kind, item, value, &isNumber))
                        return failure;
                }
                auto &field = FieldAt(first, i, m_distance);
                SetHeld(field, value);
                if (watch && isAny)
                    watch->See(CCalCell(field), Trimmed(item), kind, value, isNumber);
            }
            return nullptr;
        },
        m_first);
}

bool CCalCells::ReadPlain(const wchar_t *text, ECalValue kind, ICalCellWatch *watch) const
{
    std::array<int64_t, kMostPlainValues> values;
    if (m_count > values.size())
        return false;
    const auto count = ReadPlainList(text, kind, {values.data(), m_count});
    if (!count)
        return false;
    std::fill(values.begin() + *count, values.begin() + m_count, 0);
    return std::visit(
        [&](auto *first) {
            if (watch && !watch->AreFine(CCalCell(*first), m_distance, {values.data(), *count}))
                return false;
            for (size_t i = 0; i < m_count; ++i)
                SetHeld(FieldAt(first, i, m_distance), values[i]);
            return true;
        },
        m_first);
}

const char *CCalCells::Read(const wchar_t *text, ECalValue kind, ICalCellWatch *watch) const
{
    if (ReadPlain(text, kind, watch))
        return nullptr;
    const std::string narrow = Utf8FromWide(text);
    return Read(std::string_view(narrow), kind, watch);
}

void AppendCalValue(std::string &text, ECalValue kind, int64_t value, bool lone)
{
    char buffer[kMaxValueText];
    text.append(buffer, PutValue(buffer, kind, value, lone));
}

const char *ParseCalValue(ECalValue kind, std::string_view text, int64_t &value, bool *isNumber)
{
    value = 0;
    bool isAny = true;
    bool &outcome = isNumber ? *isNumber : isAny;
    outcome = true;
    switch (kind) {
    case ECalValue::Number:
        value = ParseNumber(text, outcome);
        break;
    case ECalValue::Db:
        value = ParseDb(text, outcome);
        break;
    case ECalValue::Volt:
        return ParseVolt(text, value);
    }
    return nullptr;
}
