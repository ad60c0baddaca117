#include "tests/fuzz/common/LayoutMutator.h"

#include <algorithm>
#include <vector>

#include "tests/fuzz/common/JsonMutator.h"

namespace {

constexpr int kMostRepeats = 64;  // elements that get one value
constexpr int64_t kNumbers[] = {0, 1, 2, 3, 7, 8, 16, 64, 100, 127, 128, 255, 256, 1000};
constexpr int64_t kBands[] = {0, 1, 3, 41, 66, 78, 79, 257, 65535};

template <typename Item>
auto OneOf(const Item &items, std::mt19937 &random)
{
    return items[static_cast<std::size_t>(FuzzBelow(random, static_cast<int>(std::size(items))))];
}

// Where a chosen field's array begins, and how many elements it has.
struct SArray
{
    const SField *field = nullptr;
    uint32_t offset = 0;
    uint32_t count = 1;
};

// A field that says how many count is met more often than its bytes would have it.
bool IsTelling(const SField &field)
{
    return field.at.name.ends_with("ount") || field.at.name.starts_with("num") ||
           !field.values.empty() || !field.bits.empty() || field.form != EForm::Number;
}

const SField *AnyField(const SLayout &layout, std::mt19937 &random)
{
    const int fields = static_cast<int>(layout.fields.size());
    const SField *field = nullptr;
    for (int i = 0; i < 4 && fields > 0; ++i) {
        field = &layout.fields[static_cast<std::size_t>(FuzzBelow(random, fields))];
        if (field->at.type == EFieldType::Record || IsTelling(*field))
            break;
    }
    return field;
}

// The first and the last are met often.
uint32_t AnyElement(uint32_t count, std::mt19937 &random)
{
    switch (FuzzBelow(random, 4)) {
    case 0:
        return 0;
    case 1:
        return count - 1;
    default:
        return static_cast<uint32_t>(FuzzBelow(random, static_cast<int>(count)));
    }
}

// Down to a field that is no record, or to an array of records on the way.
SArray AnyArray(const SLayout &layout, bool stopsAtRecords, std::mt19937 &random)
{
    SArray array;
    const SLayout *in = &layout;
    while (const SField *field = AnyField(*in, random)) {
        array = {field, array.offset + field->at.offset, CountOf(field->at)};
        if (field->at.type != EFieldType::Record || field->at.record == nullptr)
            break;
        if (stopsAtRecords && array.count > 1 && FuzzBelow(random, 2) == 0)
            break;
        array.offset += AnyElement(array.count, random) * field->at.size;
        array.count = 1;
        in = field->at.record;
    }
    return array;
}

// The rooms of the arrays of a record: what a count is measured by.
void AddRooms(const SLayout &layout, std::vector<int64_t> &rooms)
{
    for (const SField &field : layout.fields) {
        const int64_t room = CountOf(field.at);
        if (room > 1 && std::find(rooms.begin(), rooms.end(), room) == rooms.end())
            rooms.push_back(room);
        if (field.at.type == EFieldType::Record && field.at.record != nullptr && rooms.size() < 16)
            AddRooms(*field.at.record, rooms);
    }
}

int64_t NumberFor(const SLayout &layout, const SField &field, std::mt19937 &random)
{
    if (field.form == EForm::ItemWord && FuzzBelow(random, 3) != 0)
        return (int64_t{OneOf(kNumbers, random)} << 2) | (FuzzBelow(random, 4) == 0 ? 0 : 1);
    if (field.form == EForm::Band && FuzzBelow(random, 2) == 0)
        return OneOf(kBands, random);
    if (!field.values.empty() && FuzzBelow(random, 2) == 0)
        return OneOf(field.values, random).value + FuzzBelow(random, 3) - 1;
    if (!field.bits.empty() && FuzzBelow(random, 2) == 0)
        return int64_t{1} << (OneOf(field.bits, random).value & 31);
    switch (FuzzBelow(random, 4)) {
    case 0: {
        std::vector<int64_t> rooms{1};
        AddRooms(layout, rooms);
        return OneOf(rooms, random) + FuzzBelow(random, 3) - 1;
    }
    case 1: {
        const int bits = 8 * static_cast<int>(std::max<uint32_t>(field.at.size, 1));
        const int64_t half = int64_t{1} << (std::min(bits, 32) - 1);
        return half * (1 + FuzzBelow(random, 2)) - FuzzBelow(random, 2);
    }
    case 2:
        return static_cast<int64_t>(random());
    default:
        return OneOf(kNumbers, random);
    }
}

QByteArray TextFor(const SField &field, std::mt19937 &random)
{
    static const char *const kTexts[] = {"", "a", "route 7: \n", "%s%n", "\xc3\xa4", "\xff\xfe"};
    const int room = static_cast<int>(field.at.size);
    const QByteArray text = OneOf(kTexts, random);
    return FuzzBelow(random, 3) == 0 ? QByteArray(room, 'x')
                                     : (text + '\0').left(std::max(room, 1));
}

void Put(QByteArray &bytes, uint32_t offset, const QByteArray &value, int maxSize)
{
    const int at = static_cast<int>(offset);
    const int length = std::min(value.size(), maxSize - at);
    if (length <= 0)
        return;
    if (bytes.size() < at + length)
        bytes.append(QByteArray(at + length - bytes.size(), '\0'));
    bytes.replace(at, length, value.left(length));
}

void PutOne(const SLayout &layout, QByteArray &bytes, int maxSize, std::mt19937 &random)
{
    const SChosenField chosen = ChooseField(layout, random);
    if (chosen.field != nullptr)
        Put(bytes, chosen.offset, ValueFor(layout, *chosen.field, random), maxSize);
}

// One value in the elements of an array from some place on, or an element over another one.
void PutMany(const SLayout &layout, QByteArray &bytes, int maxSize, std::mt19937 &random)
{
    const SArray array = AnyArray(layout, true, random);
    if (array.field == nullptr || array.field->at.size == 0)
        return;
    const uint32_t size = array.field->at.size;
    if (array.field->at.type == EFieldType::Record) {
        const uint32_t from = array.offset + AnyElement(array.count, random) * size;
        const uint32_t to = array.offset + AnyElement(array.count, random) * size;
        Put(bytes, to, bytes.mid(static_cast<int>(from), static_cast<int>(size)), maxSize);
        return;
    }
    const QByteArray value = ValueFor(layout, *array.field, random);
    const uint32_t first = AnyElement(array.count, random);
    const uint32_t last =
        std::min(array.count, first + 1 + static_cast<uint32_t>(FuzzBelow(random, kMostRepeats)));
    for (uint32_t i = first; i < last; ++i)
        Put(bytes, array.offset + i * size, value, maxSize);
}

}  // namespace

SChosenField ChooseField(const SLayout &layout, std::mt19937 &random)
{
    const SArray array = AnyArray(layout, false, random);
    if (array.field == nullptr || array.count <= 1)
        return {array.field, array.offset};
    return {array.field, array.offset + AnyElement(array.count, random) * array.field->at.size};
}

QByteArray ValueFor(const SLayout &layout, const SField &field, std::mt19937 &random)
{
    if (field.at.type == EFieldType::Text)
        return TextFor(field, random);
    if (field.at.type == EFieldType::Bytes || field.at.type == EFieldType::Record)
        return QByteArray(static_cast<int>(std::min<uint32_t>(field.at.size, kMostRepeats)),
                          static_cast<char>(random()));
    const int64_t number = NumberFor(layout, field, random);
    QByteArray bytes;
    for (uint32_t i = 0; i < field.at.size; ++i)
        bytes.append(static_cast<char>(number >> (8 * i)));
    return bytes;
}

void AlterRecord(const SLayout &layout, QByteArray &bytes, int maxSize, std::mt19937 &random)
{
    if (layout.fields.empty())
        return;
    const int whole = std::min(static_cast<int>(layout.size), maxSize);
    switch (FuzzBelow(random, 12)) {
    case 0:  // cut, or as long as it should be
        if (FuzzBelow(random, 2) == 0)
            bytes.truncate(FuzzBelow(random, bytes.size() + 1));
        else
            bytes = bytes.leftJustified(whole, '\0', true);
        break;
    case 1:
    case 2:
    case 3:
        PutMany(layout, bytes, maxSize, random);
        break;
    default:
        PutOne(layout, bytes, maxSize, random);
    }
}
