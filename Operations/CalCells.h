// Numbers of calibration records as the text of an INI value, and back.
//
// A value is one number, or a list: numbers joined by ',' without blanks. dB stand in a record in
// 1/32 dB and in a list with five decimals, which is exact; a lone dB value has six. A voltage
// stands in a record in tenths of a volt and in a list as "3.4V".
//
// Reading is lenient, since people edit these files. Blanks around a number are skipped and so is
// what follows it; text that is no number, or one beyond all computing (1e999), counts as 0; a
// number beyond the range of its field is held to the range; places without a number become 0 and
// numbers beyond the last place are left out. dB and voltages are truncated towards 0. Only a
// voltage that is no number is a failure. The decimal point is '.' in every locale. Pure functions,
// any thread.
//
//   ReadCells(ECalValue::Db, "-30.5,1", 8, [&](int i) { return CCalCell(record.plOffset[i]); });
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

enum class ECalValue
{
    Number,
    Db,
    Volt,
};

// A field of a record, of whatever width.
class CCalCell
{
public:
    template <typename T>
    explicit CCalCell(T &field) : m_field(&field)
    {
    }

    int64_t Get() const;
    void Set(int64_t value);  // held to the range of the field

private:
    std::variant<uint8_t *, uint16_t *, int16_t *, uint32_t *> m_field;
};

// Appends a value as text; lone: it is no part of a list.
void AppendCalValue(std::string &text, ECalValue kind, int64_t value, bool lone);
// Null, or the words of the failure.
const char *ParseCalValue(ECalValue kind, std::string_view text, int64_t &value);
// Takes the first value off a list; false when none is left.
bool TakeListItem(std::string_view &list, std::string_view &item);

template <typename CellAt>
std::string CellsText(ECalValue kind, int count, CellAt cellAt)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            text += ',';
        AppendCalValue(text, kind, cellAt(i).Get(), count == 1);
    }
    return text;
}

// Null, or the words of the failure; the cells before the failed one are set then.
template <typename CellAt>
const char *ReadCells(ECalValue kind, std::string_view text, int count, CellAt cellAt)
{
    std::string_view item;
    for (int i = 0; i < count; ++i) {
        int64_t value = 0;
        if (TakeListItem(text, item)) {
            if (const char *failure = ParseCalValue(kind, item, value))
                return failure;
        }
        cellAt(i).Set(value);
    }
    return nullptr;
}
