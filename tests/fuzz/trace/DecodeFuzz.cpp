// Any bytes as a record of any function: they are read, worded and compared.
//
// An input is the number of the function, a letter ("q" request, "a" answer, "u" answer without its
// request), the length of the request, the request, and the record.
#include <string>
#include <vector>

#include "Cli/trace/FieldPattern.h"
#include "Cli/trace/RecordOutput.h"
#include "Trace/dictionary/FieldDifference.h"
#include "Trace/dictionary/FieldPath.h"
#include "Trace/words/ShownRecord.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

using Bytes = std::vector<uint8_t>;

// Copies, so that the sanitizer sees a byte too far.
struct SInput
{
    const SFunction *function = nullptr;
    bool isAnswer = false;
    Bytes request;
    Bytes record;

    const SLayout *Layout() const { return isAnswer ? function->answer : function->request; }
};

SInput InputOf(const uint8_t *data, std::size_t size)
{
    SInput input;
    constexpr auto kCount = static_cast<std::size_t>(EFunction::Count);
    input.function = &FunctionOf(static_cast<EFunction>(data[0] % kCount));
    input.isAnswer = data[1] != 'q';
    const std::size_t length = data[1] == 'a' ? std::min<std::size_t>(data[2], size - 3) : 0;
    input.request = Bytes(data + 3, data + 3 + length);
    input.record = Bytes(data + 3 + length, data + size);
    return input;
}

SShownRecord ShownOf(const SInput &input)
{
    return input.isAnswer ? ShownAnswer(*input.function, input.record, input.request)
                          : ShownRequest(*input.function, input.record);
}

void CheckFields(const SInput &input, const SShownRecord &shown)
{
    const SLayout *const layout = input.Layout();
    Require(layout != nullptr || shown.fields.empty(), "a function without a record has no fields");
    std::size_t checked = 0;
    for (const SShownField &field : shown.fields) {
        const auto found = FindField(*layout, field.name);
        Require(found.has_value(), "a field is found by the name that is shown");
        if (field.raw)
            Require(NumberAt(*layout, input.record, field.name) == field.raw,
                    "a field found by its name has the value that is shown");
        if (++checked > 50)
            continue;
        const ECallPart part = input.isAnswer ? ECallPart::Answer : ECallPart::Request;
        Require(CFieldPattern(field.name).Matches(part, field.name),
                "a field that is shown can be ignored");
    }
}

void CheckSizes(const SInput &input, const SShownRecord &shown)
{
    Require(shown.size == input.record.size(), "no byte is lost");
    Require(shown.rest.size() % 2 == 0, "bytes have two digits");
    const SLayout *const layout = input.Layout();
    if (layout != nullptr && layout->size > 0)
        Require(shown.size + shown.missing == layout->size + shown.rest.size() / 2,
                "what is missing or too much is told");
}

void CheckJson(const SShownRecord &shown)
{
    for (const EWhichFields which : {EWhichFields::All, EWhichFields::Set}) {
        const auto json = RecordJson(shown, which);
        Require(nlohmann::ordered_json::parse(json.dump()) == json, "data reads as it was written");
    }
}

// The record against itself with one byte changed.
void CheckDifferences(const SInput &input)
{
    Bytes other = input.record;
    if (!other.empty())
        other[other.size() / 2] ^= 1;
    const auto differences = [&](const Bytes &bytes) {
        return input.isAnswer ? AnswerDifferences(*input.function, {input.record, input.request},
                                                  {bytes, input.request})
                              : RequestDifferences(*input.function, input.record, bytes);
    };
    Require(differences(input.record).empty(), "a record is like itself");
    Require(differences(other).empty() == (other == input.record),
            "a changed byte is a difference");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size < 3)
        return 0;
    const SInput input = InputOf(data, size);
    const SShownRecord shown = ShownOf(input);
    CheckFields(input, shown);
    CheckSizes(input, shown);
    CheckJson(shown);
    CheckDifferences(input);
    return 0;
}
