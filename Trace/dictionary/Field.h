// What a record of the target consists of: a layout is a table of fields, in the order of the bytes.
//
// Everything is a constant. A field's name is what stands behind the record in C++, so "carrier" of
// SNrPuschTxNormalV7 is an array and "gain.single" of SMMRssiCmdV7 a part of a union.
//
// A record with a union has a choice: a field of the record, or of the request that the record answers,
// whose value says which rows hold. Rows of the branch Chosen hold when the field has that value, rows
// of the branch Otherwise when it has any other; all others hold always.
//
//   const SLayout &layout = kLayoutOf<SMMRssiCmdV7>;   // Trace/dictionary/CommandLayouts.h
//   layout.fields[0].at.name                           // "routeKind"
//   layout.choice.field                                // "singlePath"
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

struct SLayout;

enum class EFieldType
{
    U8,
    U16,
    U32,
    I8,
    I16,
    I32,
    Text,   // ends with a 0, or fills its room
    Bytes,  // nobody reads them
    Record
};

constexpr std::size_t kMostDimensions = 3;

// Where a field lies and what it is: all that its member in C++ tells.
struct SFieldPlace
{
    std::string_view name;
    uint32_t offset = 0;  // in its record
    EFieldType type = EFieldType::U8;
    uint32_t size = 0;  // bytes of one element; 0: text as long as the bytes are
    // Elements by dimension, the outermost first; 0 behind the last. A single element has none.
    std::array<uint16_t, kMostDimensions> extents = {};
    const SLayout *record = nullptr;  // of an element of the type Record
    bool isReserved = false;
};

constexpr uint32_t CountOf(const SFieldPlace &place)
{
    uint32_t count = 1;
    for (const uint16_t extent : place.extents)
        count *= extent > 0 ? extent : 1u;
    return count;
}

// A raw value of perUnit is one unit: {"dBm", 256} is dBm in 1/256 dB.
struct SUnit
{
    std::string_view name;
    uint16_t perUnit = 1;
};

// The name of a value, or of the bit with that number.
struct SValueName
{
    int64_t value;
    std::string_view name;
};

// What a number is, beside a number of a unit.
enum class EForm
{
    Number,
    Band,     // NR band number: 78 is n78
    Mask,     // a bit for each of something
    ItemWord  // bit 0: the value in bit 2 and up is there
};

enum class EBranch
{
    Always,
    Chosen,
    Otherwise
};

struct SField
{
    SFieldPlace at;
    SUnit unit = {};
    EForm form = EForm::Number;
    uint32_t itemMask = 0x3fffffff;           // of an item word's value: the bits that count
    std::span<const SValueName> values = {};  // names of values
    std::span<const SValueName> bits = {};    // names of bits; of an item word, those of its value
    EBranch branch = EBranch::Always;
    bool isReading = false;        // measured: differs between two runs of the same commands
    std::string_view remark = {};  // what to know before the value is believed
};

struct SChoice
{
    std::string_view field = {};  // empty: no choice
    int64_t value = 1;            // the branch Chosen holds
    bool isOfRequest = false;     // the field is one of the request
};

struct SLayout
{
    std::string_view name;
    uint32_t size = 0;  // bytes; 0: a text as long as the bytes are
    std::span<const SField> fields = {};
    SChoice choice = {};
};
