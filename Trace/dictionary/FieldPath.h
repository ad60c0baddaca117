// A field by its dotted name, as C++ writes it behind the record.
//
//   const auto found = FindField(kLayoutOf<SNrPuschTxCmdV7>, "normalMode.carrier[1].band");
//   found->offset       // 52
//   found->field->form  // EForm::Band
//
// An array without an index, and a record, are found as a whole. Whether a part of a union holds is not
// asked.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Trace/dictionary/Field.h"

struct SFoundField
{
    const SField *field = nullptr;
    uint32_t offset = 0;  // from the beginning of the outermost record
    uint32_t size = 0;    // bytes of what was named
};

std::optional<SFoundField> FindField(const SLayout &layout, std::string_view path);

// Every element of a record without unions, in the order of the bytes: numbers, texts, and each piece of
// reserved bytes as one.
//
//   ElementsOf(kLayoutOf<SAptBlock>)[3].offset   // 4, of paModeCount
std::vector<SFoundField> ElementsOf(const SLayout &layout);
// "[1][3]" of an element behind an array's name; an array of one element has an index, too.
void AppendIndexes(std::string &name, const SFieldPlace &place, uint32_t element);
// The dotted name of the element that begins at an offset; empty where none does.
std::string NameAt(const SLayout &layout, uint32_t offset);

// The raw number of a field of the bytes. Nothing where the path names no single number, and where the
// bytes end before it.
//
//   NumberAt(kLayoutOf<SNRfCapability>, bytes, "rfChipId")   // 40
std::optional<int64_t> NumberAt(const SLayout &layout, std::span<const uint8_t> bytes,
                                std::string_view path);
