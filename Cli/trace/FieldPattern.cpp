#include "Cli/trace/FieldPattern.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

#include "Trace/dictionary/Functions.h"

namespace {

constexpr std::array<std::string_view, 10> kCallKeys = {"ended",  "handle", "timeout", "result",
                                                        "text",   "status", "startNs", "durationNs",
                                                        "thread", "pid"};

bool IsEndOfName(std::string_view rest)
{
    return rest.empty() || rest.front() == '.' || rest.front() == '[';
}

// Takes the indexes at the front, each below its dimension; fewer than there are is well, too.
bool TakeIndexes(std::string_view &text, const SFieldPlace &place)
{
    for (std::size_t i = 0; !text.empty() && text.front() == '['; ++i) {
        const std::size_t close = text.find(']');
        if (i == kMostDimensions || close == std::string_view::npos)
            return false;
        uint32_t index = 0;
        const char *const end = text.data() + close;
        const auto [stop, error] = std::from_chars(text.data() + 1, end, index);
        if (error != std::errc() || stop != end || index >= place.extents[i])
            return false;
        text.remove_prefix(close + 1);
    }
    return true;
}

// Does the text name a field of the layout, or some of its fields?
bool NamesField(const SLayout &layout, std::string_view text)
{
    return std::any_of(layout.fields.begin(), layout.fields.end(), [&](const SField &field) {
        const std::string_view name = field.at.name;
        if (name.starts_with(text) && IsEndOfName(name.substr(text.size())))
            return true;
        if (!text.starts_with(name) || !IsEndOfName(text.substr(name.size())))
            return false;
        std::string_view rest = text.substr(name.size());
        if (!TakeIndexes(rest, field.at))
            return false;
        return rest.empty() || (rest.front() == '.' && field.at.record != nullptr &&
                                NamesField(*field.at.record, rest.substr(1)));
    });
}

bool NamesFieldOf(ECallPart part, std::string_view text)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        const SLayout *const layout =
            part == ECallPart::Request ? function.request : function.answer;
        if (layout != nullptr && NamesField(*layout, text))
            return true;
    }
    return false;
}

}  // namespace

CFieldPattern::CFieldPattern(const std::string &text) : m_name(text)
{
    const std::pair<std::string_view, ECallPart> parts[] = {{"request", ECallPart::Request},
                                                            {"answer", ECallPart::Answer}};
    for (const auto &[name, part] : parts) {
        if (!text.starts_with(name))
            continue;
        if (text.size() == name.size() || text[name.size()] == '.') {
            m_part = part;
            m_name = text.substr(std::min(text.size(), name.size() + 1));
        }
    }
    const bool isWhole = m_part && text.find('.') == std::string::npos;
    const bool isKey =
        !m_part && std::find(kCallKeys.begin(), kCallKeys.end(), m_name) != kCallKeys.end();
    const bool isField =
        !m_name.empty() &&
        ((m_part != ECallPart::Answer && NamesFieldOf(ECallPart::Request, m_name)) ||
         (m_part != ECallPart::Request && NamesFieldOf(ECallPart::Answer, m_name)));
    if (!isWhole && !isKey && !isField)
        throw std::runtime_error("--ignore: no field is named \"" + text + "\"");
}

bool CFieldPattern::Matches(ECallPart part, std::string_view name) const
{
    if (m_part && *m_part != part)
        return false;
    if (m_name.empty())
        return true;
    std::size_t place = 0;
    for (std::size_t i = 0; i < m_name.size();) {
        if (place < name.size() && name[place] == m_name[i]) {
            ++place;
            ++i;
        } else if (place < name.size() && name[place] == '[') {
            place = std::min(name.size(), name.find(']', place)) + 1;
        } else {
            return false;
        }
    }
    return IsEndOfName(name.substr(std::min(place, name.size())));
}
