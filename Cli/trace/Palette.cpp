#include "Cli/trace/Palette.h"

#include <cstdlib>

#include <unistd.h>

namespace {

std::string_view Variable(const char *name)
{
    const char *const value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

std::string CPalette::In(std::string_view color, std::string_view text) const
{
    if (!m_isColored || text.empty())
        return std::string(text);
    std::string colored = "\x1b[";
    colored.append(color).append("m").append(text).append("\x1b[0m");
    return colored;
}

CPalette PaletteOf(std::FILE *stream)
{
    return CPalette(isatty(fileno(stream)) != 0 && Variable("NO_COLOR").empty() &&
                    Variable("TERM") != "dumb");
}
