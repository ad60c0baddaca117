#include "Trace/words/ShownRecord.h"

#include <algorithm>
#include <set>

#include "Trace/dictionary/Decode.h"
#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/ValueText.h"

namespace {

using ShownBytes = std::span<const uint8_t>;

SShownField ShownFieldOf(const SFieldValue &value)
{
    SShownField field = {.name = std::string(value.name),
                         .text = ValueText(value),
                         .raw = std::nullopt,
                         .isSet = value.IsSet(),
                         .isReserved = value.field->at.isReserved,
                         .isReading = value.isReading,
                         .remark = std::string(value.remark),
                         .condition = {}};
    if (IsWholeNumber(value.field->at.type))
        field.raw = value.number;
    return field;
}

// A request that has the value which a choice asks for, and is zero otherwise.
std::vector<uint8_t> ChoosingRequest(const SLayout &request, const SChoice &choice)
{
    std::vector<uint8_t> bytes(request.size);
    const SFieldPlace &place = request.fields[RowOf(request, choice.field)].at;
    WriteNumber(place.type, choice.value, std::span(bytes).subspan(place.offset));
    return bytes;
}

std::string ConditionOf(const SLayout &request, const SChoice &choice, bool isChosen)
{
    const SField &field = request.fields[RowOf(request, choice.field)];
    std::string words = "if ";
    words.append(choice.field).append(" of the request is ").append(isChosen ? "" : "not ");
    words += std::to_string(choice.value);
    for (const SValueName &row : field.values) {
        if (row.value == choice.value)
            words.append(" (").append(row.name).append(")");
    }
    return words;
}

// Says of the fields that hang on the request when they hold.
void AddConditions(const SFunction &function, ShownBytes bytes, SShownRecord &shown)
{
    const SChoice choice = ChoiceOfRequest(*function.answer);
    std::set<std::string, std::less<>> chosen;
    DecodeAnswer(function, bytes, ChoosingRequest(*function.request, choice),
                 [&](const SFieldValue &value) { chosen.emplace(value.name); });
    for (SShownField &field : shown.fields) {
        if (!field.condition.empty())
            field.condition = ConditionOf(*function.request, choice, chosen.count(field.name) > 0);
    }
}

void End(const SDecoded &decoded, ShownBytes bytes, SShownRecord &shown)
{
    shown.size = bytes.size();
    shown.missing = decoded.missing;
    shown.rest = HexDigits(bytes.last(decoded.extra));
}

}  // namespace

bool IsShown(const SShownField &field, EWhichFields which)
{
    return field.isSet || (which == EWhichFields::All && !field.isReserved);
}

std::string ByteCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

SShownRecord ShownRequest(const SFunction &function, ShownBytes bytes)
{
    SShownRecord shown;
    const SDecoded decoded = DecodeRequest(function, bytes, [&](const SFieldValue &value) {
        shown.fields.push_back(ShownFieldOf(value));
    });
    End(decoded, bytes, shown);
    return shown;
}

SShownRecord ShownAnswer(const SFunction &function, ShownBytes bytes, ShownBytes request)
{
    SShownRecord shown;
    bool isCertain = true;
    const SDecoded decoded = DecodeAnswer(function, bytes, request, [&](const SFieldValue &value) {
        shown.fields.push_back(ShownFieldOf(value));
        if (!value.isCertain)
            shown.fields.back().condition = "if its layout holds";
        isCertain = isCertain && value.isCertain;
    });
    if (!isCertain && function.HangsOnRequest())
        AddConditions(function, bytes, shown);
    End(decoded, bytes, shown);
    return shown;
}
