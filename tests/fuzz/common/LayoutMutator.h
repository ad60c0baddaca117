// Alters the bytes of a record where its layout says that something stands: a count, an enumeration, a
// band, an item word, a whole element of an array.
//
// Most new values are ones that a reader trips over: the ends of the field's type, the room of an array of
// the record and one more, a named value and its neighbour. Bytes too few or too many come, too. The same
// random numbers make the same change. Pure; any thread.
//
//   QByteArray bytes(kLayoutOf<SMMRssiCnfV7>.size, '\0');
//   AlterRecord(kLayoutOf<SMMRssiCnfV7>, bytes, 4096, random);
#pragma once

#include <random>

#include <QByteArray>

#include "Trace/dictionary/Field.h"

// A number field of a record that was chosen, and where it lies from the record's beginning.
struct SChosenField
{
    const SField *field = nullptr;
    uint32_t offset = 0;
};

// Any field of the record: of an array any element, of a record in it any of its fields. Null where the
// layout has none.
SChosenField ChooseField(const SLayout &layout, std::mt19937 &random);
// What the field may be given, as its bytes.
QByteArray ValueFor(const SLayout &layout, const SField &field, std::mt19937 &random);

// At most maxSize bytes afterwards. A layout without fields: as it was.
void AlterRecord(const SLayout &layout, QByteArray &bytes, int maxSize, std::mt19937 &random);
