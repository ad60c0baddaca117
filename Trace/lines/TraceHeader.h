// The first line of a trace.
#pragma once

#include <string>

struct STraceHeader
{
    std::string tool = {};         // version of the tool that wrote it
    std::string time = {};         // of the beginning, ISO 8601
    std::string core = {};         // file name of VondCore
    std::string coreBuildId = {};  // hexadecimal; empty where the file has none
    std::string app = {};          // of VondApp
    std::string appBuildId = {};
};

// Of the pair that the process has loaded, written by a tool of that version; the time is empty.
STraceHeader HeaderOfThePair(std::string tool);
