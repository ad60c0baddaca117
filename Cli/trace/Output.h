// What a command says: text on the standard output, in colors on a terminal.
//
//   COutput output;
//   output.Line(output.Palette().Heading("RSSI: Start"));
//   output.End();
//
// Nobody reading on (a pipe into "head") is no failure: the rest is dropped.
#pragma once

#include <string>
#include <string_view>

#include "Cli/trace/Palette.h"

class COutput
{
public:
    COutput();

    const CPalette &Palette() const { return m_palette; }
    void Write(std::string_view text);
    void Line(std::string_view text = {});
    // Throws std::runtime_error when not all could be written.
    void End();

private:
    CPalette m_palette;
    int m_error = 0;  // errno of the first write that failed
};
