// Keys of an INI section as a table: which field of a record a key holds, how, and what it reads as
// when it is absent. The same table writes and reads.
//
//   constexpr SCalKey<SAptRouteBwRecord> kKeys[] = {
//       {"Temperature Index", ECalValue::Number, 1, "3",
//        [](SAptRouteBwRecord &r, int) { return CCalCells(r.normalTempIndex); }}};
//   WriteKeys(section, kKeys, record);
#pragma once

#include <initializer_list>
#include <string>

#include "Operations/calibration/CalCells.h"
#include "Operations/calibration/CalValueWatch.h"
#include "Support/IniLines.h"
#include "Support/IniSection.h"

template <typename Record>
struct SCalKey
{
    const char *key;  // with rows > 1, "%d" in it is the row
    ECalValue kind;
    int rows;  // 1, or the number of keys of this form, which follow each other in the file
    const char *absent;
    CCalCells (*cells)(Record &record, int row);
};

// The "%d" and "%s" of a form replaced by the texts, in their order; the first function appends it.
void AppendForm(std::string &to, std::string_view form, std::initializer_list<std::string> texts);
std::string FormText(std::string_view form, std::initializer_list<std::string> texts);

// What a key that a section lacks reads as.
enum class EAbsentKey
{
    Default,  // the table's text
    Keep,     // what the record held before
};

// The key of a row; buffer holds the text of a form.
template <typename Record>
std::string_view KeyText(const SCalKey<Record> &key, int row, std::string &buffer)
{
    if (key.rows == 1)
        return key.key;
    buffer.clear();
    AppendForm(buffer, key.key, {std::to_string(row)});
    return buffer;
}

template <typename Record, size_t keyCount>
void WriteKeys(CIniSection &section, const SCalKey<Record> (&keys)[keyCount], Record &record)
{
    std::string buffer;
    for (const SCalKey<Record> &key : keys) {
        for (int row = 0; row < key.rows; ++row)
            key.cells(record, row).AppendTo(section.Key(KeyText(key, row, buffer)), key.kind);
    }
}

// Null, or the words of the failure; the record is half read then. watch sees what the file has.
template <typename Record, size_t keyCount>
const char *ReadKeys(const CIniLines &section, const SCalKey<Record> (&keys)[keyCount],
                     EAbsentKey absent, Record &record, CCalValueWatch &watch)
{
    std::string buffer;
    for (const SCalKey<Record> &key : keys) {
        for (int row = 0; row < key.rows; ++row) {
            const std::string_view keyText = KeyText(key, row, buffer);
            const wchar_t *text = section.Find(keyText);
            if (!text && absent == EAbsentKey::Keep)
                continue;
            watch.BeginKey(section.Name(), keyText);
            const CCalCells cells = key.cells(record, row);
            const char *failure = text ? cells.Read(text, key.kind, &watch)
                                       : cells.Read(std::string_view(key.absent), key.kind);
            if (failure)
                return failure;
        }
    }
    return nullptr;
}
