#include "Operations/calibration/CalBlockDifferences.h"

#include <algorithm>
#include <span>

#include "Operations/calibration/CalComparison.h"
#include "Operations/calibration/CalValueWatch.h"
#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/ValueText.h"

namespace {

std::string ValueWords(const SField &field, std::span<const uint8_t> bytes)
{
    SFieldValue value;
    value.field = &field;
    value.bytes = bytes;
    value.number = ReadNumber(field.at.type, bytes);
    return ValueText(value);
}

std::string LimitWords(const SField &field, int64_t raw)
{
    SFieldValue value;
    value.field = &field;
    value.number = raw;
    return ValueText(value);
}

bool IsShownBy(const SCalShown &shown, int64_t value)
{
    return (shown.isZeroFree && value == 0) || (value >= shown.least && value <= shown.most);
}

}  // namespace

std::vector<std::string> CalBlockDifferences(const SCalBlockRecord &record,
                                             const SCalBlockRecord *other,
                                             const SCalSideNames &names)
{
    static const std::vector<uint8_t> kNone;
    const auto line = [&names](const std::string &left, const std::string &right) {
        return left + ' ' + names.left + ", " + right + ' ' + names.right;
    };
    const std::vector<uint8_t> &there = other ? other->blocks : kNone;
    const std::size_t size = CalBlockSize(record.kind);
    if (there.size() != record.blocks.size())
        return {line(std::to_string(record.blocks.size() / size) + " blocks",
                     std::to_string(there.size() / size))};
    std::vector<std::string> lines;
    const SLayout &layout = CalBlockLayout(record.kind);
    const std::vector<SFoundField> parts = ElementsOf(layout);
    for (std::size_t block = 0; block < record.blocks.size() / size; ++block) {
        for (const SFoundField &part : parts) {
            const std::size_t at = block * size + part.offset;
            const auto left = std::span(record.blocks).subspan(at, part.size);
            const auto right = std::span(there).subspan(at, part.size);
            if (!std::equal(left.begin(), left.end(), right.begin()))
                lines.push_back(
                    "block " + std::to_string(block + 1) + ' ' + NameAt(layout, part.offset) +
                    ": " + line(ValueWords(*part.field, left), ValueWords(*part.field, right)));
        }
    }
    return lines;
}

bool DiffersInFields(const SCalBlockRecord &one, const SCalBlockRecord &other)
{
    return CCalComparison(JoinedImage({{one}}), JoinedImage({{other}})).Count() > 0;
}

std::vector<std::string> CalValuesBeyond(const SCalImageRecord &wanted,
                                         const SCalImageRecord *before, ICalPageLimits &limits)
{
    std::vector<std::string> lines;
    const SLayout &layout = CalRecordLayout(wanted.kind);
    for (const SFoundField &part : ElementsOf(layout)) {
        const auto bytes = std::span(wanted.bytes).subspan(part.offset, part.size);
        if (before && std::equal(bytes.begin(), bytes.end(), before->bytes.begin() + part.offset))
            continue;
        const SCalShown *shown = limits.Of(wanted.kind, wanted.place, part.offset);
        if (!shown || IsShownBy(*shown, ReadNumber(part.field->at.type, bytes)))
            continue;
        lines.push_back(CalRecordName(wanted.kind, wanted.place) + ' ' +
                        NameAt(layout, part.offset) + ": " + ValueWords(*part.field, bytes) +
                        " is not within " + LimitWords(*part.field, shown->least) + " to " +
                        LimitWords(*part.field, shown->most));
    }
    return lines;
}
