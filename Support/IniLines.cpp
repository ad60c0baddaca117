#include "Support/IniLines.h"

#include <algorithm>
#include <numeric>

namespace {

wchar_t LowerAscii(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c;
}

// The order of the library: below 0, 0 or above as a key of the file stands to one that is asked
// for.
int Compare(const wchar_t *held, std::string_view key)
{
    for (const char c : key) {
        const wchar_t own = *held++;  // the NUL of a shorter key differs from any character
        const wchar_t asked = static_cast<unsigned char>(c);
        if (own != asked && LowerAscii(own) != LowerAscii(asked))
            return LowerAscii(own) < LowerAscii(asked) ? -1 : 1;
    }
    return *held != L'\0';
}

}  // namespace

CIniLines::CIniLines(const std::string &name, std::vector<SLine> lines)
    : m_name(name), m_lines(std::move(lines)), m_inFile(m_lines.size())
{
    std::iota(m_inFile.begin(), m_inFile.end(), size_t(0));
    std::sort(m_inFile.begin(), m_inFile.end(),
              [this](size_t a, size_t b) { return m_lines[a].order < m_lines[b].order; });
}

const wchar_t *CIniLines::Find(std::string_view key) const
{
    if (m_next < m_inFile.size()) {
        size_t place = m_inFile[m_next];
        if (Compare(m_lines[place].key, key) == 0) {
            ++m_next;
            m_place = place + 1;
            while (place > 0 && m_lines[place - 1].order < m_lines[place].order &&
                   Compare(m_lines[place - 1].key, key) == 0)
                --place;
            return m_lines[place].value;
        }
    }
    m_place = PlaceOf(key);
    if (m_place == m_lines.size() || Compare(m_lines[m_place].key, key) != 0)
        return nullptr;
    const auto found = std::find(m_inFile.begin(), m_inFile.end(), m_place);
    m_next = static_cast<size_t>(found - m_inFile.begin()) + 1;
    return m_lines[m_place].value;
}

size_t CIniLines::PlaceOf(std::string_view key) const
{
    const auto isBelow = [](const SLine &line, std::string_view asked) {
        return Compare(line.key, asked) < 0;
    };
    const bool isBehindLower = m_place == 0 || isBelow(m_lines[m_place - 1], key);
    if (isBehindLower && (m_place == m_lines.size() || !isBelow(m_lines[m_place], key)))
        return m_place;
    const auto place = std::lower_bound(m_lines.begin(), m_lines.end(), key, isBelow);
    return static_cast<size_t>(place - m_lines.begin());
}
