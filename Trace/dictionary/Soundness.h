// Proofs at compile time: a layout describes each byte of its record exactly once, in each of its
// branches, and what it refers to is there.
//
//   static_assert(IsSound(kLayoutOf<SNrDlFreqCnfV7>));
//   static_assert(HasWhatDecides(kLayoutOf<SMMRssiCmdV7>, kLayoutOf<SMMRssiCnfV7>));
//
// No proof compares a pointer: with the sanitizers the address of an inline variable is no constant.
#pragma once

#include <cstddef>
#include <initializer_list>

#include "Trace/dictionary/Field.h"

constexpr bool IsWholeNumber(EFieldType type)
{
    return type < EFieldType::Text;
}

// The number of rows where the layout has no such row.
constexpr std::size_t RowOf(const SLayout &layout, std::string_view name)
{
    std::size_t row = 0;
    while (row < layout.fields.size() && layout.fields[row].at.name != name)
        ++row;
    return row;
}

// Can a choice hang on that field of the layout?
constexpr bool CanDecide(const SLayout &layout, std::string_view name)
{
    const std::size_t row = RowOf(layout, name);
    if (row == layout.fields.size())
        return false;
    const SField &field = layout.fields[row];
    return field.branch == EBranch::Always && IsWholeNumber(field.at.type) &&
           CountOf(field.at) == 1;
}

// Do the rows that hold in the branch follow one another from the first byte to the last?
constexpr bool IsCovered(const SLayout &layout, EBranch branch)
{
    uint32_t end = 0;
    for (const SField &field : layout.fields) {
        if (field.branch != EBranch::Always && field.branch != branch)
            continue;
        if (field.at.offset != end)
            return false;
        end += field.at.size * CountOf(field.at);
    }
    return end == layout.size;
}

constexpr bool HasDistinctNames(const SLayout &layout)
{
    for (std::size_t row = 0; row < layout.fields.size(); ++row) {
        const std::string_view name = layout.fields[row].at.name;
        if (name.empty() || RowOf(layout, name) != row)
            return false;
    }
    return true;
}

// Only numbers have units, forms and names.
constexpr bool HasMeaning(const SField &field)
{
    return !field.unit.name.empty() || field.form != EForm::Number || !field.values.empty() ||
           !field.bits.empty();
}

// Has a number of that unit finitely many decimals?
constexpr bool IsDecimal(const SUnit &unit)
{
    uint32_t rest = unit.perUnit;
    for (const uint32_t factor : {2u, 5u}) {
        while (rest > 0 && rest % factor == 0)
            rest /= factor;
    }
    return rest == 1;
}

constexpr bool IsSound(const SLayout &layout);

// A text without a size stands alone in its layout. The record of an element fills it.
constexpr bool IsSound(const SLayout &layout, const SField &field)
{
    if (layout.choice.field.empty() && field.branch != EBranch::Always)
        return false;
    if (!IsWholeNumber(field.at.type) && HasMeaning(field))
        return false;
    if (field.at.type == EFieldType::Record)
        return field.at.record->size == field.at.size && IsSound(*field.at.record);
    const bool isOpen = field.at.type == EFieldType::Text && layout.size == 0;
    return (field.at.size > 0 || isOpen) && IsDecimal(field.unit);
}

constexpr bool IsSound(const SLayout &layout)
{
    if (layout.fields.empty() || !HasDistinctNames(layout))
        return false;
    for (const SField &field : layout.fields) {
        if (!IsSound(layout, field))
            return false;
    }
    if (layout.choice.field.empty())
        return IsCovered(layout, EBranch::Always);
    return (layout.choice.isOfRequest || CanDecide(layout, layout.choice.field)) &&
           IsCovered(layout, EBranch::Chosen) && IsCovered(layout, EBranch::Otherwise);
}

// The choice of the request that the layout, or a record in it, hangs on; an empty one where there is
// none.
constexpr SChoice ChoiceOfRequest(const SLayout &layout)
{
    if (layout.choice.isOfRequest)
        return layout.choice;
    for (const SField &field : layout.fields) {
        if (field.at.type != EFieldType::Record)
            continue;
        const SChoice inner = ChoiceOfRequest(*field.at.record);
        if (!inner.field.empty())
            return inner;
    }
    return {};
}

// Has the request the field that its answer hangs on?
constexpr bool HasWhatDecides(const SLayout &request, const SLayout &answer)
{
    const SChoice choice = ChoiceOfRequest(answer);
    return choice.field.empty() || CanDecide(request, choice.field);
}
