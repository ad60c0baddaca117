// Little-endian numbers of the records, as they lie in bytes.
//
//   const int64_t power = ReadNumber(EFieldType::I16, bytes.subspan(28, 2));
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "Trace/dictionary/Soundness.h"

constexpr std::size_t SizeOf(EFieldType type)
{
    switch (type) {
    case EFieldType::U8:
    case EFieldType::I8:
        return 1;
    case EFieldType::U16:
    case EFieldType::I16:
        return 2;
    case EFieldType::U32:
    case EFieldType::I32:
        return 4;
    default:
        return 0;
    }
}

constexpr bool IsSigned(EFieldType type)
{
    return type == EFieldType::I8 || type == EFieldType::I16 || type == EFieldType::I32;
}

// 0 for what is no number, and when there are too few bytes.
constexpr int64_t ReadNumber(EFieldType type, std::span<const uint8_t> bytes)
{
    const std::size_t size = SizeOf(type);
    if (size == 0 || bytes.size() < size)
        return 0;
    uint64_t raw = 0;
    for (std::size_t i = 0; i < size; ++i)
        raw |= static_cast<uint64_t>(bytes[i]) << (8 * i);
    const uint64_t sign = uint64_t{1} << (8 * size - 1);
    if (IsSigned(type) && (raw & sign) != 0)
        return static_cast<int64_t>(raw) - static_cast<int64_t>(2 * sign);
    return static_cast<int64_t>(raw);
}

// Keeps the low bytes of a number that is too large. Writes nothing where there are too few bytes.
constexpr void WriteNumber(EFieldType type, int64_t number, std::span<uint8_t> bytes)
{
    const std::size_t size = SizeOf(type);
    if (bytes.size() < size)
        return;
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<uint8_t>(static_cast<uint64_t>(number) >> (8 * i));
}
