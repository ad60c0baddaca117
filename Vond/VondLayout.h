// Layout checks for records that cross the process boundary.
//
// Every wire record is little-endian and naturally aligned, and has no bytes without a name. Its size
// stands beside it. The offset of each field, its unit and the names of its values stand in its row of
// Trace/dictionary, once; a compiler that would lay the record out differently fails there instead of on
// the target. Records that no row describes, those in memory, state their offsets here.
//
//   VOND_SIZE(SNrDlFreqCnfV7, 8);
//   VOND_OFFSET(SAptRouteBwRecord, band, 0);
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
