#include "Support/IniSection.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEquals = " = ";

size_t CountUnprintable(std::string_view text)
{
    size_t count = 0;
    for (char c : text)
        count += c < ' ' || c > '~';
    return count;
}

}  // namespace

std::string &CIniSection::Key(std::string_view key)
{
    if (!m_places.empty())
        m_text += kLineEnd;
    const size_t begin = m_text.size();
    m_text += key;
    m_text += kEquals;
    m_places.push_back({begin, m_text.size()});
    return m_text;
}

std::vector<CIniSection::SLine> CIniSection::Lines() const
{
    const std::string_view text = m_text;
    std::vector<SLine> lines;
    lines.reserve(m_places.size());
    for (size_t i = 0; i < m_places.size(); ++i) {
        const SPlace &place = m_places[i];
        const size_t end =
            i + 1 < m_places.size() ? m_places[i + 1].key - kLineEnd.size() : text.size();
        lines.push_back({text.substr(place.key, place.value - kEquals.size() - place.key),
                         text.substr(place.value, end - place.value)});
    }
    return lines;
}

bool CIniSection::IsPlain() const
{
    const size_t ownLineEnds = m_places.empty() ? 0 : (m_places.size() - 1) * kLineEnd.size();
    return CountUnprintable(m_name) == 0 && CountUnprintable(m_text) == ownLineEnds;
}

void CIniSection::AppendTo(std::string &text) const
{
    text += '[';
    text += m_name;
    text += ']';
    text += kLineEnd;
    text += m_text;
    text += kLineEnd;
}
