// A section of an INI file as a whole, to be written: its keys and their values, in the order of the
// file, for CCalIniFile::WriteSection. A section that a file holds is a CIniLines.
//
// Key gives a text; the value is appended to it, and nothing else is done with it. A long list is
// built in its place that way. Two keys of a section differ in more than the case of ASCII letters;
// what a name, a key and a value may hold stands at CCalIniFile. UTF-8.
//
// No lock inside: one thread at a time.
//
//     CIniSection section("NR n78 BW0 TPC");
//     section.Key("Route") += std::to_string(7);
//     file.WriteSection(std::move(section));
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Names and keys are compared without the case of ASCII letters.
inline char LowerAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

class CIniSection
{
public:
    struct SLine
    {
        std::string_view key;
        std::string_view value;
    };

    explicit CIniSection(const std::string &name);

    // Begins a key. Its value goes to the end of this text, before the next call here.
    std::string &Key(std::string_view key);

    const std::string &Name() const { return m_name; }
    bool IsEmpty() const { return m_places.empty(); }
    SLine Line(size_t index) const;
    std::vector<SLine> Lines() const;
    // Name and lines hold printable ASCII alone.
    bool IsPlain() const;
    // Takes the text of the section as it stands in a file. The section is empty afterwards.
    std::string TakeText();

private:
    struct SPlace
    {
        size_t key;    // where it begins
        size_t value;  // likewise, behind the " = "
    };

    std::string m_name;
    std::string m_text;  // heading and lines, the last one without its line end
    std::vector<SPlace> m_places;
};
