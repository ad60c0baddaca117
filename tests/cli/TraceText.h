// A trace as text, line by line, with values that a test chooses.
//
//   const std::string trace = TraceHeaderLine() + CallLines({.index = 0, .function = "VOND_NRf_TestStop_r"});
#pragma once

#include <string>

struct SCallText
{
    int index = 0;
    std::string function;
    std::string request = "null";  // with its quotes
    std::string answer = "null";
    int result = 0;
    std::string text = "Success";
    unsigned status = 0;
    unsigned durationNs = 1000;
    unsigned handle = 1;
};

std::string TraceHeaderLine();
std::string BeginLine(const SCallText &call);
std::string EndLine(const SCallText &call);
std::string CallLines(const SCallText &call);
std::string NoteLine(const std::string &text);
