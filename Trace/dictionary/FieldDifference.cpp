#include "Trace/dictionary/FieldDifference.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "Trace/dictionary/Decode.h"
#include "Trace/dictionary/ValueText.h"

namespace {

constexpr std::string_view kAbsent = "absent";

// A record as its fields; the names live here, the bytes elsewhere.
struct SFieldList
{
    std::vector<std::pair<std::string, SFieldValue>> fields = {};
    std::span<const uint8_t> bytes = {};
    std::size_t end = 0;  // of the last field

    FieldVisitor Visitor()
    {
        return [this](const SFieldValue &value) {
            fields.emplace_back(value.name, value);
            end = std::max(end, value.offset + value.bytes.size());
        };
    }
    // Behind the record, or of a field that is cut.
    std::span<const uint8_t> Rest() const { return bytes.subspan(end); }
};

bool AreEqual(std::span<const uint8_t> one, std::span<const uint8_t> other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end());
}

std::string CountOfBytes(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

std::vector<SFieldDifference> Compare(const SFieldList &one, const SFieldList &other)
{
    std::unordered_map<std::string_view, const SFieldValue *> left;
    for (const auto &[name, value] : other.fields)
        left.emplace(name, &value);
    std::vector<SFieldDifference> differences;
    for (const auto &[name, value] : one.fields) {
        const auto found = left.find(name);
        if (found == left.end()) {
            differences.push_back({name, ValueText(value), std::string(kAbsent), value.isReading});
            continue;
        }
        if (!AreEqual(value.bytes, found->second->bytes))
            differences.push_back(
                {name, ValueText(value), ValueText(*found->second), value.isReading});
        left.erase(found);
    }
    for (const auto &[name, value] : other.fields) {
        if (left.count(name) > 0)
            differences.push_back({name, std::string(kAbsent), ValueText(value), value.isReading});
    }
    if (one.bytes.size() != other.bytes.size())
        differences.push_back(
            {"(size)", CountOfBytes(one.bytes.size()), CountOfBytes(other.bytes.size())});
    else if (!AreEqual(one.Rest(), other.Rest()))
        differences.push_back({"(rest)", CountOfBytes(one.Rest().size()), "other bytes"});
    return differences;
}

}  // namespace

std::vector<SFieldDifference> RequestDifferences(const SFunction &function,
                                                 std::span<const uint8_t> one,
                                                 std::span<const uint8_t> other)
{
    if (AreEqual(one, other))
        return {};
    SFieldList lists[2] = {{.bytes = one}, {.bytes = other}};
    for (SFieldList &list : lists)
        DecodeRequest(function, list.bytes, list.Visitor());
    return Compare(lists[0], lists[1]);
}

std::vector<SFieldDifference> AnswerDifferences(const SFunction &function, const SAnswerBytes &one,
                                                const SAnswerBytes &other)
{
    if (AreEqual(one.bytes, other.bytes) &&
        (!function.HangsOnRequest() || AreEqual(one.request, other.request)))
        return {};
    SFieldList lists[2] = {{.bytes = one.bytes}, {.bytes = other.bytes}};
    DecodeAnswer(function, one.bytes, one.request, lists[0].Visitor());
    DecodeAnswer(function, other.bytes, other.request, lists[1].Visitor());
    return Compare(lists[0], lists[1]);
}
