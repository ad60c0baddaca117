#include "Trace/dictionary/Decode.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/Soundness.h"

namespace {

using Bytes = std::span<const uint8_t>;

std::string_view TextOf(Bytes bytes)
{
    const std::string_view all(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    return all.substr(0, all.find('\0'));
}

// What a record inherits from the rows around it.
struct SAround
{
    bool isReading = false;
    bool isCertain = true;
    std::string_view remark = {};
};

class CWalk
{
public:
    CWalk(Bytes bytes, const SRequestBytes &request, const FieldVisitor &visit)
        : m_bytes(bytes), m_request(request), m_visit(visit)
    {
    }

    void Record(const SLayout &layout, std::size_t base, const SAround &around)
    {
        const std::optional<EBranch> holding = BranchOf(layout, base);
        for (const SField &field : layout.fields) {
            const bool isAlways = field.branch == EBranch::Always;
            if (!isAlways && holding && *holding != field.branch)
                continue;
            const SAround inner = {around.isReading || field.isReading,
                                   around.isCertain && (isAlways || holding),
                                   field.remark.empty() ? around.remark : field.remark};
            Elements(field, base + field.at.offset, inner);
        }
    }

private:
    // Nothing when the field that decides is not there.
    std::optional<EBranch> BranchOf(const SLayout &layout, std::size_t base) const
    {
        const SChoice &choice = layout.choice;
        if (choice.field.empty())
            return EBranch::Always;
        if (choice.isOfRequest)
            return m_request.layout != nullptr
                       ? BranchBy(choice, *m_request.layout, m_request.bytes)
                       : std::nullopt;
        return BranchBy(choice, layout, m_bytes.subspan(std::min(base, m_bytes.size())));
    }

    static std::optional<EBranch> BranchBy(const SChoice &choice, const SLayout &layout,
                                           Bytes bytes)
    {
        const std::size_t row = RowOf(layout, choice.field);
        if (row == layout.fields.size())
            return std::nullopt;
        const SFieldPlace &place = layout.fields[row].at;
        if (place.offset + place.size > bytes.size())
            return std::nullopt;
        const int64_t value = ReadNumber(place.type, bytes.subspan(place.offset));
        return value == choice.value ? EBranch::Chosen : EBranch::Otherwise;
    }

    void Elements(const SField &field, std::size_t offset, const SAround &around)
    {
        const std::size_t length = m_name.size();
        m_name += field.at.name;
        const uint32_t count = CountOf(field.at);
        const std::size_t bare = m_name.size();
        for (uint32_t i = 0; i < count; ++i, offset += field.at.size) {
            if (offset >= m_bytes.size() && field.at.size > 0)
                break;
            AppendIndexes(m_name, field.at, i);
            if (field.at.type == EFieldType::Record) {
                m_name += '.';
                Record(*field.at.record, offset, around);
            } else {
                Element(field, offset, around);
            }
            m_name.resize(bare);
        }
        m_name.resize(length);
    }

    void Element(const SField &field, std::size_t offset, const SAround &around)
    {
        const std::size_t size = field.at.size > 0 ? field.at.size : m_bytes.size() - offset;
        if (size > m_bytes.size() - offset)
            return;
        SFieldValue value;
        value.name = m_name;
        value.field = &field;
        value.offset = offset;
        value.bytes = m_bytes.subspan(offset, size);
        value.isReading = around.isReading;
        value.isCertain = around.isCertain;
        value.remark = around.remark;
        if (field.at.type == EFieldType::Text)
            value.text = TextOf(value.bytes);
        else
            value.number = ReadNumber(field.at.type, value.bytes);
        m_visit(value);
    }

    Bytes m_bytes;
    const SRequestBytes &m_request;
    const FieldVisitor &m_visit;
    std::string m_name;
};

}  // namespace

bool SFieldValue::IsSet() const
{
    return std::any_of(bytes.begin(), bytes.end(), [](uint8_t byte) { return byte != 0; });
}

SDecoded Decode(const SLayout &layout, Bytes bytes, const SRequestBytes &request,
                const FieldVisitor &visit)
{
    CWalk(bytes, request, visit).Record(layout, 0, {});
    if (layout.size == 0)
        return {};
    const std::size_t size = layout.size;
    return {.missing = size - std::min(size, bytes.size()),
            .extra = bytes.size() - std::min(size, bytes.size())};
}

SDecoded DecodeRequest(const SFunction &function, Bytes bytes, const FieldVisitor &visit)
{
    if (function.request == nullptr)
        return {.extra = bytes.size()};
    return Decode(*function.request, bytes, {}, visit);
}

SDecoded DecodeAnswer(const SFunction &function, Bytes bytes, Bytes request,
                      const FieldVisitor &visit)
{
    if (function.answer == nullptr)
        return {.extra = bytes.size()};
    return Decode(*function.answer, bytes, {function.request, request}, visit);
}
