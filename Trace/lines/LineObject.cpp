#include "Trace/lines/LineObject.h"

#include <array>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

namespace {

// A key may be as long as its line.
std::string Quoted(std::string_view key)
{
    constexpr std::size_t kLongest = 80;
    const bool isLong = key.size() > kLongest;
    return '"' + std::string(key.substr(0, kLongest)) + (isLong ? "...\"" : "\"");
}

[[noreturn]] void FailLine(const std::string &reason)
{
    throw std::runtime_error(reason);
}

constexpr uint8_t kNoDigit = 16;

constexpr std::array<uint8_t, 256> DigitTable()
{
    std::array<uint8_t, 256> table = {};
    table.fill(kNoDigit);
    for (uint8_t i = 0; i < 10; ++i)
        table[std::size_t{'0'} + i] = i;
    for (uint8_t i = 0; i < 6; ++i)
        table[std::size_t{'a'} + i] = table[std::size_t{'A'} + i] = static_cast<uint8_t>(10 + i);
    return table;
}
// By sign, for a trace of an hour has a hundred million of them.
constexpr std::array<uint8_t, 256> kDigitOfSign = DigitTable();

uint8_t DigitOf(char sign)
{
    return kDigitOfSign[static_cast<uint8_t>(sign)];
}

}  // namespace

// Takes what nlohmann's parser finds; refuses at once what does not belong into a line, so that deep
// nesting costs nothing.
class CLineObject::CHandler
{
public:
    // NOLINTBEGIN(readability-identifier-naming): the names are the parser's.
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit CHandler(CLineObject &line) : m_line(line) {}

    bool null() { return Put(SNothing{.isNull = true}); }
    bool boolean(bool) { return Put(SNothing{.isNull = false}); }
    bool number_integer(number_integer_t number) { return Put(number); }
    bool number_unsigned(number_unsigned_t number) { return Put(number); }
    bool number_float(number_float_t, const string_t &) { return Put(SNothing{.isNull = false}); }
    bool string(string_t &text) { return Put(std::move(text)); }
    bool binary(binary_t &) { return Put(SNothing{.isNull = false}); }
    bool start_object(std::size_t)
    {
        if (m_isInside)
            FailLine(Quoted(m_key) + " is an object");
        m_isInside = true;
        return true;
    }
    bool key(string_t &name)
    {
        if (m_line.Has(name))
            FailLine(Quoted(name) + " stands twice");
        m_key = std::move(name);
        return true;
    }
    bool end_object() { return true; }
    bool start_array(std::size_t)
    {
        if (m_isInside)
            FailLine(Quoted(m_key) + " is an array");
        FailLine("is no JSON object");
    }
    bool end_array() { return true; }
    // The parser's own words name its internals; what the reader of a trace needs is the place.
    bool parse_error(std::size_t position, const std::string &, const nlohmann::json::exception &)
    {
        FailLine("is no JSON at byte " + std::to_string(position));
    }
    // NOLINTEND(readability-identifier-naming)

private:
    bool Put(Value value)
    {
        if (!m_isInside)
            FailLine("is no JSON object");
        m_line.m_members.insert_or_assign(m_key, std::move(value));
        return true;
    }

    CLineObject &m_line;
    std::string m_key;
    bool m_isInside = false;
};

CLineObject::CLineObject(std::string_view line)
{
    CHandler handler(*this);
    nlohmann::json::sax_parse(line.begin(), line.end(), &handler);
}

const CLineObject::Value &CLineObject::Take(std::string_view key) const
{
    const auto found = m_members.find(key);
    if (found == m_members.end())
        FailLine(Quoted(key) + " is missing");
    return found->second;
}

uint64_t CLineObject::Unsigned(std::string_view key, uint64_t most) const
{
    const uint64_t *const number = std::get_if<uint64_t>(&Take(key));
    if (number == nullptr || *number > most)
        FailLine(Quoted(key) + " is no whole number from 0 to " + std::to_string(most));
    return *number;
}

int64_t CLineObject::Signed(std::string_view key, int64_t least, int64_t most) const
{
    const Value &value = Take(key);
    const uint64_t *const number = std::get_if<uint64_t>(&value);
    if (number != nullptr && *number <= static_cast<uint64_t>(most))
        return static_cast<int64_t>(*number);
    const int64_t *const negative = std::get_if<int64_t>(&value);
    if (negative == nullptr || *negative < least || *negative > most)
        FailLine(Quoted(key) + " is no whole number from " + std::to_string(least) + " to " +
                 std::to_string(most));
    return *negative;
}

const std::string &CLineObject::Text(std::string_view key) const
{
    const std::string *const text = std::get_if<std::string>(&Take(key));
    if (text == nullptr)
        FailLine(Quoted(key) + " is no text");
    return *text;
}

TraceBytes CLineObject::Bytes(std::string_view key) const
{
    const Value &value = Take(key);
    const SNothing *const nothing = std::get_if<SNothing>(&value);
    if (nothing != nullptr && nothing->isNull)
        return std::nullopt;
    const std::string *const digits = std::get_if<std::string>(&value);
    if (digits == nullptr)
        FailLine(Quoted(key) + " is neither a text nor null");
    if (digits->size() % 2 != 0)
        FailLine(Quoted(key) + " has an odd number of digits");
    std::vector<uint8_t> bytes(digits->size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const uint8_t high = DigitOf((*digits)[2 * i]);
        const uint8_t low = DigitOf((*digits)[2 * i + 1]);
        if (high == kNoDigit || low == kNoDigit)
            FailLine(Quoted(key) + " has a sign that is no hexadecimal digit, in byte " +
                     std::to_string(i));
        bytes[i] = static_cast<uint8_t>(high << 4 | low);
    }
    return bytes;
}
