// How tables of fields are written: the row of a member states its offset and what the member's type
// does not tell. A row at another offset than the member, and a table that leaves a byte out or has
// one twice, do not compile.
//
//   inline constexpr SField kNrDlFreqCnfFields[] = {
//       {.at = TRACE_AT(SNrDlFreqCnfV7, status, 0), .values = kStatusNames},
//       {.at = TRACE_AT(SNrDlFreqCnfV7, dlFrequency, 4), .unit = kKhz},
//   };
//   TRACE_LAYOUT(SNrDlFreqCnfV7, kNrDlFreqCnfFields);
//
//   kLayoutOf<SNrDlFreqCnfV7>.size   // 8
//
// A member whose name begins with "reserved" is reserved bytes. A record in a record is described
// before it, and found by its type.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "Trace/dictionary/Field.h"
#include "Trace/dictionary/Soundness.h"

// The layout of a record; empty for what TRACE_LAYOUT has not described.
template <class Record>
inline constexpr SLayout kLayoutOf = {};

template <class Number>
constexpr EFieldType NumberType()
{
    static_assert(std::is_integral_v<Number> && sizeof(Number) <= sizeof(uint32_t));
    constexpr EFieldType kUnsigned[] = {EFieldType::U8, EFieldType::U16, EFieldType::U32};
    constexpr EFieldType kSigned[] = {EFieldType::I8, EFieldType::I16, EFieldType::I32};
    return (std::is_signed_v<Number> ? kSigned : kUnsigned)[sizeof(Number) / 2];
}

// The last dimension of characters is the text's room.
template <class Member>
constexpr std::array<uint16_t, kMostDimensions> ExtentsOf()
{
    constexpr bool kIsText = std::is_same_v<std::remove_all_extents_t<Member>, char>;
    constexpr std::size_t kRank = std::rank_v<Member> - (kIsText ? 1 : 0);
    static_assert(kRank <= kMostDimensions);
    constexpr std::array<std::size_t, kMostDimensions> kAll = {
        std::extent_v<Member, 0>, std::extent_v<Member, 1>, std::extent_v<Member, 2>};
    std::array<uint16_t, kMostDimensions> extents = {};
    for (std::size_t i = 0; i < kRank; ++i)
        extents[i] = static_cast<uint16_t>(kAll[i]);
    return extents;
}

template <class Member, std::size_t offset, std::size_t stated>
constexpr SFieldPlace PlaceOf(std::string_view name)
{
    static_assert(offset == stated, "the member lies elsewhere than its row says");
    using Element = std::remove_all_extents_t<Member>;
    SFieldPlace place = {.name = name, .offset = static_cast<uint32_t>(offset)};
    if (name.substr(name.rfind('.') + 1).starts_with("reserved")) {
        place.type = EFieldType::Bytes;
        place.size = sizeof(Member);
        place.isReserved = true;
        return place;
    }
    place.extents = ExtentsOf<Member>();
    place.size = static_cast<uint32_t>(sizeof(Member) / CountOf(place));
    if constexpr (std::is_class_v<Element> || std::is_union_v<Element>) {
        place.type = EFieldType::Record;
        place.record = &kLayoutOf<Element>;
    } else if constexpr (std::is_same_v<Element, char>) {
        place.type = EFieldType::Text;
    } else {
        place.type = NumberType<Element>();
    }
    return place;
}

// For a record that lies differently by its place.
constexpr SFieldPlace As(const SLayout &layout, SFieldPlace place)
{
    place.record = &layout;
    return place;
}

#define TRACE_AT(Record, member, bytes)                                                            \
    PlaceOf<decltype(std::declval<Record>().member), offsetof(Record, member), bytes>(#member)

// The third argument, if any, is the choice: .choice = {.field = "forced"}.
#define TRACE_LAYOUT(Record, rows, ...)                                                            \
    template <>                                                                                    \
    inline constexpr SLayout kLayoutOf<Record> = {                                                 \
        .name = #Record, .size = sizeof(Record), .fields = rows __VA_OPT__(, ) __VA_ARGS__};       \
    static_assert(IsSound(kLayoutOf<Record>), #Record ": each byte belongs to one row")
