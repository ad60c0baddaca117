#include "Trace/lines/LineBuffer.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "Trace/lines/Utf8.h"

namespace {

constexpr char kDigits[] = "0123456789abcdef";
constexpr std::size_t kFirstCapacity = 512;
constexpr std::string_view kReplacement = "\xef\xbf\xbd";  // U+FFFD

using DigitPair = std::array<char, 2>;

constexpr std::array<DigitPair, 256> kPairs = [] {
    std::array<DigitPair, 256> pairs = {};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {kDigits[i >> 4], kDigits[i & 15]};
    return pairs;
}();

void AppendControl(CLineBuffer &line, char character)
{
    switch (character) {
    case '"':
        line.Append("\\\"");
        return;
    case '\\':
        line.Append("\\\\");
        return;
    case '\n':
        line.Append("\\n");
        return;
    case '\t':
        line.Append("\\t");
        return;
    default:
        const auto code = static_cast<uint8_t>(character);
        line.Append("\\u00").AppendHex({&code, 1});
    }
}

bool NeedsEscape(char character)
{
    const auto code = static_cast<uint8_t>(character);
    return code < 0x20 || code == 0x7f || character == '"' || character == '\\';
}

}  // namespace

char *CLineBuffer::Room(std::size_t count)
{
    if (m_capacity - m_size < count) {
        const std::size_t capacity = std::max({kFirstCapacity, 2 * m_capacity, m_size + count});
        std::unique_ptr<char[]> text(new char[capacity]);
        if (m_size > 0)
            std::memcpy(text.get(), m_text.get(), m_size);
        m_text = std::move(text);
        m_capacity = capacity;
    }
    return m_text.get() + m_size;
}

CLineBuffer &CLineBuffer::Append(std::string_view text)
{
    if (text.empty())
        return *this;
    std::memcpy(Room(text.size()), text.data(), text.size());
    m_size += text.size();
    return *this;
}

CLineBuffer &CLineBuffer::AppendHex(std::span<const uint8_t> bytes)
{
    char *to = Room(2 * bytes.size());
    for (const uint8_t byte : bytes) {
        std::memcpy(to, kPairs[byte].data(), sizeof(DigitPair));
        to += sizeof(DigitPair);
    }
    m_size += 2 * bytes.size();
    return *this;
}

CLineBuffer &CLineBuffer::AppendJson(std::string_view text)
{
    Append("\"");
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        if (length == 0)
            Append(kReplacement);
        else if (length == 1 && NeedsEscape(text.front()))
            AppendControl(*this, text.front());
        else
            Append(text.substr(0, length));
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return Append("\"");
}
