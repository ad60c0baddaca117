// The keys of the document format, one table a level, and the forms that their values have.
//
// The tables say which keys a level knows, in groups of which groupType, and which of them have to
// be there. Spellings are exact, also where they look wrong ("dimentionCount").
//
//   CheckKeys({object, path, groupType}, GroupKeys(), report);
//       // reports unknown, missing and run-time keys and values of a wrong form
#pragma once

#include <cstddef>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "tools/modelcheck/Finding.h"

// Forms of a value. The engine reads a value of another form as empty or 0, without a word.
enum class EForm
{
    Text,
    UnsignedText,  // text of a decimal number without a sign
    Number,
    Whole,  // number without a fraction
    Flag,   // number 1 or 0
    Object,
    Entry,      // object with the keys of the data type
    TextList,   // array of texts
    TrueFalse,  // array ["true", "false"]
    Boolean,    // text "true" or "false"
    Other       // looked at by another check
};

constexpr unsigned GroupBit(int groupType)
{
    return groupType >= 1 && groupType <= 3 ? 1U << groupType : 0U;
}
constexpr unsigned kAllGroups = GroupBit(1) | GroupBit(2) | GroupBit(3);

struct SKey
{
    const char *name;
    EForm form;
    unsigned groups = kAllGroups;  // GroupBit of each groupType that knows the key
    unsigned required = 0;         // the same, of each that wants it
    bool isRunTime = false;        // the program makes it; a resource does not have it
};

struct SKeyTable
{
    const SKey *keys;
    std::size_t count;
    const SKey *begin() const { return keys; }
    const SKey *end() const { return keys + count; }
    const SKey *Find(const QString &name) const;
};

template <std::size_t size>
constexpr SKeyTable KeyTable(const SKey (&keys)[size])
{
    return {keys, size};
}

SKeyTable RootKeys();
SKeyTable SectionKeys(bool isCmdIf);
SKeyTable GroupKeys();
// Of a column table's memberProperty, beside its members.
SKeyTable ColumnKeys();
SKeyTable MemberKeys();
SKeyTable TraitKeys();

// "a text", "a whole number"; for the words of a finding.
QString FormName(EForm form);
// True for Object, Entry and Other, which need a closer look than this.
bool HasForm(const QJsonValue &value, EForm form);

// An object of the document at its path, in a group of that type (0: in none, or of unknown type).
struct SPlace
{
    QJsonObject object;
    QString path;
    int groupType = 0;
};

// Reports what the keys of the object break. Keys in others are known by other means.
void CheckKeys(const SPlace &place, SKeyTable table, const SReport &report,
               const QStringList &others = {});
// "path.key".
QString Below(const QString &path, const QString &key);
