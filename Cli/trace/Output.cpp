#include "Cli/trace/Output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

COutput::COutput() : m_palette(PaletteOf(stdout)) {}

void COutput::Write(std::string_view text)
{
    // fwrite wants a place also for nothing.
    if (m_error == 0 && !text.empty() &&
        std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        m_error = errno;
}

void COutput::Line(std::string_view text)
{
    Write(text);
    Write("\n");
}

void COutput::End()
{
    if (m_error == 0 && std::fflush(stdout) != 0)
        m_error = errno;
    if (m_error != 0 && m_error != EPIPE)
        throw std::runtime_error(std::string("standard output: ") + std::strerror(m_error));
}
