#include "Support/IniSection.h"

#include <algorithm>

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEquals = " = ";

bool IsPrintable(std::string_view text)
{
    unsigned char outside = 0;  // gathered without a branch, so that the loop takes many at once
    for (char c : text)
        outside |= static_cast<unsigned char>(static_cast<unsigned char>(c - ' ') > '~' - ' ');
    return outside == 0;
}

}  // namespace

CIniSection::CIniSection(const std::string &name) : m_name(name), m_text("[" + name + "]") {}

std::string &CIniSection::Key(std::string_view key)
{
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
    const std::vector<SLine> lines = Lines();
    return IsPrintable(m_name) && std::all_of(lines.begin(), lines.end(), [](const SLine &line) {
               return IsPrintable(line.key) && IsPrintable(line.value);
           });
}

std::string CIniSection::TakeText()
{
    m_places.clear();
    m_text += kLineEnd;
    return std::move(m_text);
}
