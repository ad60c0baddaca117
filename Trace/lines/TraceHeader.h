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

// Its keys beside "vondTrace", in the order of the line.
struct STraceHeaderKey
{
    const char *key;
    std::string STraceHeader::*value;
};
inline constexpr STraceHeaderKey kTraceHeaderKeys[] = {
    {.key = "tool", .value = &STraceHeader::tool},
    {.key = "time", .value = &STraceHeader::time},
    {.key = "core", .value = &STraceHeader::core},
    {.key = "coreBuildId", .value = &STraceHeader::coreBuildId},
    {.key = "app", .value = &STraceHeader::app},
    {.key = "appBuildId", .value = &STraceHeader::appBuildId},
};

// Of the pair that the process has loaded, written by a tool of that version; the time is empty.
STraceHeader HeaderOfThePair(std::string tool);
