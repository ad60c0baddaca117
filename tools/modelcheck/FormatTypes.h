// The data types of the document format, as a page's author meets them: one row each.
//
// The engine has rows of its own (View/engine/DataTypes.h), and it has the last word on names and
// classes. They are not used here because they lie in the module of the pages: the program would
// link every page and load Qt Widgets and the library of target commands to read two text files,
// and could not be built while the page that it shall check does not compile. A test compares
// these rows with the engine's.
//
//   const SFormatType *type = FindFormatType("range");
//   if (type && type->groups & GroupBit(2)) ...   // usable in a row table
#pragma once

#include <QString>

#include "tools/modelcheck/FormatKeys.h"

struct SFormatType
{
    const char *name;
    const char *className;  // exact class of its widget or cell
    unsigned groups;        // GroupBit of each groupType that can show it
    EForm value;            // form of "value"
    EForm pairEntry;        // form of an entry of "valuePair"
    SKeyTable entryKeys;    // when these are objects
    bool needsValue;        // of no use without choices or limits
    bool publishesValue;    // as a scalar member
    bool publishesStatus;   // as a scalar member
    bool followsAsRow;      // a row of a column table takes new values
};

const SFormatType *FindFormatType(const QString &name);

// All rows, for the test that holds them to the engine's.
struct SFormatTypes
{
    const SFormatType *rows;
    std::size_t count;
    const SFormatType *begin() const { return rows; }
    const SFormatType *end() const { return rows + count; }
};
SFormatTypes AllFormatTypes();
