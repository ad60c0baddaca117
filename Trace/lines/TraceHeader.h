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
