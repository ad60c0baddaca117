// The keys and values of a section that an INI file holds, where the INI library has them: nothing
// is copied or converted, so that a long list is read once, by whoever takes its numbers.
//
// Values are the library's wide text. They live until the file is written to or destroyed. Keys are
// compared without the case of ASCII letters, of which a key that is asked for consists, with
// digits and signs of ASCII.
//
// No lock inside: one thread at a time.
//
//     const std::optional<CIniLines> lines = file.ReadSection("NR n78 BW0 TPC");
//     if (const wchar_t *route = lines ? lines->Find("Route") : nullptr) ...
#pragma once

#include <string>
#include <string_view>
#include <vector>

class CIniLines
{
public:
    struct SLine
    {
        const wchar_t *key;
        const wchar_t *value;
        int order;  // of the lines in the file
    };

    // lines: sorted by key, as the library keeps them; of a key that comes several times the first
    // one of the file first.
    CIniLines(const std::string &name, std::vector<SLine> lines);

    const std::string &Name() const { return m_name; }
    // The first value of a key; null when there is none. Quickest for keys that come in the order of the
    // file; a run of absent keys, sorted, is no slower.
    const wchar_t *Find(std::string_view key) const;

private:
    // The first line whose key is not below this one.
    size_t PlaceOf(std::string_view key) const;

    std::string m_name;
    std::vector<SLine> m_lines;    // sorted by key
    std::vector<size_t> m_inFile;  // their places, in the order of the file
    // Where the next key will probably be.
    mutable size_t m_next = 0;   // in m_inFile: behind the line that was found last
    mutable size_t m_place = 0;  // in m_lines: behind that line, or where an absent key would be
};
