// A line of text that grows at its end, and keeps its memory for the next line.
//
//   CLineBuffer line;
//   line.Append("{\"begin\":").AppendNumber(7).Append("}\n");
//   write(file, line.Text().data(), line.Text().size());
//
// AppendHex writes two lower-case digits a byte; AppendJson a JSON string with its quotes, whatever the
// bytes: what is no UTF-8 is replaced by U+FFFD. Throws std::bad_alloc.
#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

class CLineBuffer
{
public:
    CLineBuffer &Append(std::string_view text);
    CLineBuffer &AppendHex(std::span<const uint8_t> bytes);
    CLineBuffer &AppendJson(std::string_view text);
    template <std::integral Number>
    CLineBuffer &AppendNumber(Number number)
    {
        constexpr std::size_t kLongestNumber = 24;
        char *const begin = Room(kLongestNumber);
        m_size += static_cast<std::size_t>(
            std::to_chars(begin, begin + kLongestNumber, number).ptr - begin);
        return *this;
    }

    std::string_view Text() const { return {m_text.get(), m_size}; }
    std::size_t Capacity() const { return m_capacity; }
    void Clear() { m_size = 0; }

private:
    // Room for so many characters behind the end.
    char *Room(std::size_t count);

    std::unique_ptr<char[]> m_text;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};
