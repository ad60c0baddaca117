// Layout checks for records that cross the process boundary.
//
// Every wire record is little-endian and naturally aligned. A record states its size once and the
// offset of every field once; a compiler that would lay it out differently fails here instead of on
// the target.
//
//   VOND_SIZE(SNrDlFreqCnfV7, 8);
//   VOND_OFFSET(SNrDlFreqCnfV7, dlFrequency, 4);
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "wire records are little-endian");

#define VOND_SIZE(Record, bytes)                                                                   \
    static_assert(sizeof(Record) == (bytes), #Record " must be " #bytes " bytes");                 \
    static_assert(std::is_trivially_copyable_v<Record> && std::is_standard_layout_v<Record>,       \
                  #Record " must be plain data")

#define VOND_OFFSET(Record, field, bytes)                                                          \
    static_assert(offsetof(Record, field) == (bytes), #Record "::" #field " must lie at " #bytes)
