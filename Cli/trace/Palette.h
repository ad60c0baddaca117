// Colors of a terminal: a text in the color of what it is, or as it is where nobody looks at a
// terminal.
//
//   const CPalette palette = PaletteOf(stdout);
//   output << palette.Failure("Timeout (7)");
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

class CPalette
{
public:
    explicit CPalette(bool isColored) : m_isColored(isColored) {}

    std::string Heading(std::string_view text) const { return In("1;36", text); }
    std::string Function(std::string_view text) const { return In("1", text); }
    std::string Failure(std::string_view text) const { return In("31", text); }
    std::string Good(std::string_view text) const { return In("32", text); }
    std::string Aside(std::string_view text) const { return In("2", text); }

private:
    std::string In(std::string_view color, std::string_view text) const;

    bool m_isColored;
};

// With colors when the stream is a terminal, NO_COLOR is not set or empty, and TERM is not "dumb".
CPalette PaletteOf(std::FILE *stream);
