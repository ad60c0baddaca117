// Numbers of calibration records as the text of an INI value, and back.
//
// A value is one number, or a list: numbers joined by ',' without blanks. dB stand in a record in
// 1/32 dB and in a list with five decimals, which is exact; a lone dB value has six. A voltage
// stands in a record in tenths of a volt and in a list as "3.4V".
//
// Reading is lenient, since people edit these files. Blanks around a number and text behind it are
// skipped. Text that is no number, or an infinite one (1e999), counts as 0. A number beyond the
// range of its field is limited to the range. Fields without a number become 0, and numbers without
// a field are left out. dB and voltages are truncated towards 0. Only a voltage that is no number
// is a failure. The decimal point is '.' in every locale. Pure functions, any thread.
//
//   CCalCells(record.plOffset).Read("-30.5,1", ECalValue::Db);
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "Operations/calibration/CalValue.h"

// A field of a record, of whatever width.
class CCalCell
{
public:
    template <typename T>
    explicit CCalCell(T &field) : m_field(&field)
    {
    }

    int64_t Get() const;
    const void *Address() const;
    void Set(int64_t value);  // limited to the range of the field

private:
    std::variant<uint8_t *, uint16_t *, int16_t *, uint32_t *> m_field;
};

// Sees the values of a file as they are read.
class ICalCellWatch
{
public:
    virtual ~ICalCellWatch() = default;
    // value: before it is limited to the range of its field.
    virtual void See(CCalCell cell, std::string_view text, ECalValue kind, int64_t value,
                     bool isNumber) = 0;
    // True when See has nothing to note of these numbers. The first is that of the cell, each other
    // that of a cell so many bytes behind the one before.
    virtual bool AreFine(CCalCell first, size_t distance, std::span<const int64_t> values) = 0;
};

// The fields of a record that one value of a file holds: a lone one, or a list of fields that lie
// at equal distances.
class CCalCells
{
public:
    // A lone field, or an array.
    template <typename T>
    explicit CCalCells(T &fields)
        : CCalCells(First(fields), std::is_array_v<T> ? std::extent_v<T> : 1,
                    sizeof(std::remove_extent_t<T>))
    {
    }
    // A field of each element of an array.
    template <typename Row, size_t count, typename T>
    CCalCells(Row (&rows)[count], T Row::*field) : CCalCells(rows[0].*field, count, sizeof(Row))
    {
    }
    // count fields from the first one on, each so many bytes behind the one before.
    template <typename T>
    CCalCells(T &first, size_t count, size_t distance)
        : m_first(&first), m_count(count), m_distance(distance)
    {
    }

    // Appends the values of the fields as one value of a file.
    void AppendTo(std::string &text, ECalValue kind) const;
    // Null, or the words of the failure; the fields before the failed one are set then.
    // watch, if any, sees each value, but for a list of which it has nothing to note.
    const char *Read(std::string_view text, ECalValue kind, ICalCellWatch *watch = nullptr) const;
    // The same of a value as CIniLines has it; quick when this tool has written it.
    const char *Read(const wchar_t *text, ECalValue kind, ICalCellWatch *watch = nullptr) const;

private:
    template <typename T>
    static T &First(T &field)
    {
        return field;
    }
    template <typename T, size_t count>
    static T &First(T (&fields)[count])
    {
        return fields[0];
    }

    bool ReadPlain(const wchar_t *text, ECalValue kind, ICalCellWatch *watch) const;

    std::variant<uint8_t *, uint16_t *, int16_t *, uint32_t *> m_first;
    size_t m_count;
    size_t m_distance;
};

// Appends a value as text; lone: it is no part of a list.
void AppendCalValue(std::string &text, ECalValue kind, int64_t value, bool lone);
// Null, or the words of the failure. isNumber: false for a text that counts as 0.
const char *ParseCalValue(ECalValue kind, std::string_view text, int64_t &value,
                          bool *isNumber = nullptr);
