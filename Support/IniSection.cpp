#include "Support/IniSection.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEquals = " = ";
// Most sections need no more.
constexpr size_t kUsualBytes = 8 * 1024;
constexpr size_t kUsualKeys = 32;

bool IsPrintable(std::string_view text)
{
    unsigned char outside = 0;  // gathered without a branch, so that the loop takes many at once
    for (char c : text)
        outside |= static_cast<unsigned char>(static_cast<unsigned char>(c - ' ') > '~' - ' ');
    return outside == 0;
}

}  // namespace

CIniSection::CIniSection(const std::string &name) : m_name(name)
{
    m_text.reserve(kUsualBytes);
    m_places.reserve(kUsualKeys);
    m_text += '[';
    m_text += name;
    m_text += ']';
}

std::string &CIniSection::Key(std::string_view key)
{
    m_text += kLineEnd;
    const size_t begin = m_text.size();
    m_text += key;
    m_text += kEquals;
    m_places.push_back({begin, m_text.size()});
    return m_text;
}

CIniSection::SLine CIniSection::Line(size_t index) const
{
    const std::string_view text = m_text;
    const SPlace &place = m_places[index];
    const size_t end =
        index + 1 < m_places.size() ? m_places[index + 1].key - kLineEnd.size() : text.size();
    return {text.substr(place.key, place.value - kEquals.size() - place.key),
            text.substr(place.value, end - place.value)};
}

std::vector<CIniSection::SLine> CIniSection::Lines() const
{
    std::vector<SLine> lines;
    lines.reserve(m_places.size());
    for (size_t i = 0; i < m_places.size(); ++i)
        lines.push_back(Line(i));
    return lines;
}

bool CIniSection::IsPlain() const
{
    bool plain = IsPrintable(m_name);
    for (size_t i = 0; plain && i < m_places.size(); ++i) {
        const SLine line = Line(i);
        plain = IsPrintable(line.key) && IsPrintable(line.value);
    }
    return plain;
}

std::string CIniSection::TakeText()
{
    m_places.clear();
    m_text += kLineEnd;
    return std::move(m_text);
}
