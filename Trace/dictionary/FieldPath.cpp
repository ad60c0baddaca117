#include "Trace/dictionary/FieldPath.h"

#include <charconv>

#include "Trace/dictionary/Number.h"

namespace {

void AppendElements(const SLayout &layout, uint32_t base, std::vector<SFoundField> &elements)
{
    for (const SField &field : layout.fields) {
        const uint32_t count = CountOf(field.at);
        for (uint32_t i = 0; i < count; ++i) {
            const uint32_t offset = base + field.at.offset + i * field.at.size;
            if (field.at.type == EFieldType::Record)
                AppendElements(*field.at.record, offset, elements);
            else
                elements.push_back({&field, offset, field.at.size});
        }
    }
}

// Does the path begin with the name, as a whole?
bool BeginsWith(std::string_view path, std::string_view name)
{
    if (!path.starts_with(name))
        return false;
    return path.size() == name.size() || path[name.size()] == '.' || path[name.size()] == '[';
}

// Takes "[3]" from the front; the number must be below the end.
bool TakeIndex(std::string_view &path, uint32_t end, uint32_t &index)
{
    if (path.empty() || path.front() != '[')
        return false;
    const std::size_t close = path.find(']');
    if (close == std::string_view::npos)
        return false;
    const char *const first = path.data() + 1;
    const char *const last = path.data() + close;
    const auto [stop, error] = std::from_chars(first, last, index);
    if (error != std::errc() || stop != last || first == last || index >= end)
        return false;
    path.remove_prefix(close + 1);
    return true;
}

// Takes the indexes of an array. None at all means the whole of it.
bool TakeIndexes(std::string_view &path, SFoundField &found)
{
    const SFieldPlace &place = found.field->at;
    uint32_t left = CountOf(place);
    uint32_t element = 0;
    for (std::size_t i = 0; i < kMostDimensions && place.extents[i] > 0; ++i) {
        if (i == 0 && (path.empty() || path.front() != '['))
            return true;
        uint32_t index = 0;
        if (!TakeIndex(path, place.extents[i], index))
            return false;
        left /= place.extents[i];
        element += index * left;
    }
    found.offset += element * place.size;
    found.size = place.size;
    return true;
}

}  // namespace

void AppendIndexes(std::string &name, const SFieldPlace &place, uint32_t element)
{
    uint32_t count = CountOf(place);
    for (std::size_t i = 0; i < kMostDimensions && place.extents[i] > 0; ++i) {
        count /= place.extents[i];
        name += '[';
        name += std::to_string(element / count % place.extents[i]);
        name += ']';
    }
}

std::optional<SFoundField> FindField(const SLayout &layout, std::string_view path)
{
    for (const SField &field : layout.fields) {
        if (!BeginsWith(path, field.at.name))
            continue;
        SFoundField found = {&field, field.at.offset, field.at.size * CountOf(field.at)};
        std::string_view rest = path.substr(field.at.name.size());
        const bool isArray = CountOf(field.at) > 1;
        const bool isWhole = isArray && (rest.empty() || rest.front() != '[');
        if (!TakeIndexes(rest, found))
            return std::nullopt;
        if (rest.empty())
            return found;
        if (isWhole || rest.front() != '.' || field.at.record == nullptr)
            return std::nullopt;
        std::optional<SFoundField> inner = FindField(*field.at.record, rest.substr(1));
        if (inner)
            inner->offset += found.offset;
        return inner;
    }
    return std::nullopt;
}

std::vector<SFoundField> ElementsOf(const SLayout &layout)
{
    std::vector<SFoundField> elements;
    AppendElements(layout, 0, elements);
    return elements;
}

std::string NameAt(const SLayout &layout, uint32_t offset)
{
    for (const SField &field : layout.fields) {
        const SFieldPlace &place = field.at;
        const uint32_t count = CountOf(place);
        if (offset < place.offset || offset - place.offset >= count * place.size)
            continue;
        const uint32_t element = (offset - place.offset) / place.size;
        const uint32_t rest = (offset - place.offset) % place.size;
        std::string name(place.name);
        AppendIndexes(name, place, element);
        if (place.type != EFieldType::Record)
            return rest == 0 ? name : std::string();
        const std::string inner = NameAt(*place.record, rest);
        return inner.empty() ? inner : name.append(".").append(inner);
    }
    return {};
}

std::optional<int64_t> NumberAt(const SLayout &layout, std::span<const uint8_t> bytes,
                                std::string_view path)
{
    const std::optional<SFoundField> found = FindField(layout, path);
    if (!found || found->size != SizeOf(found->field->at.type) ||
        found->offset + found->size > bytes.size())
        return std::nullopt;
    return ReadNumber(found->field->at.type, bytes.subspan(found->offset));
}
