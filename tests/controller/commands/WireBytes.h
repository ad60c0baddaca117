// The bytes of a record that a test expects, told offset by offset and independent of the record's
// own declaration.
//
//   EXPECT_EQ(HexOf(command), CWireBytes(12).U16(0, 78).U32(4, 3549990).U8(8, 1).Hex());
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

// Lines of 16 bytes, each with its offset.
inline std::string HexOf(const uint8_t *bytes, std::size_t count)
{
    std::string text;
    char part[24];
    for (std::size_t i = 0; i < count; ++i) {
        if (i % 16 == 0) {
            std::snprintf(part, sizeof part, "\n%3u:", unsigned(i));
            text += part;
        }
        std::snprintf(part, sizeof part, " %02x", bytes[i]);
        text += part;
    }
    return text;
}

template <typename Record>
std::string HexOf(const Record &record)
{
    return HexOf(reinterpret_cast<const uint8_t *>(&record), sizeof record);
}

// Zero but for what is set; little-endian.
class CWireBytes
{
public:
    explicit CWireBytes(std::size_t size) : m_bytes(size) {}

    CWireBytes &U8(std::size_t offset, uint32_t value) { return Set(offset, value, 1); }
    CWireBytes &U16(std::size_t offset, uint32_t value) { return Set(offset, value, 2); }
    CWireBytes &U32(std::size_t offset, uint32_t value) { return Set(offset, value, 4); }
    CWireBytes &I16(std::size_t offset, int32_t value) { return Set(offset, uint32_t(value), 2); }
    CWireBytes &I32(std::size_t offset, int32_t value) { return Set(offset, uint32_t(value), 4); }

    std::string Hex() const { return HexOf(m_bytes.data(), m_bytes.size()); }

private:
    CWireBytes &Set(std::size_t offset, uint32_t value, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            m_bytes.at(offset + i) = uint8_t(value >> (8 * i));
        return *this;
    }

    std::vector<uint8_t> m_bytes;
};
