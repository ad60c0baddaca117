#include "tests/cli/TraceText.h"

std::string TraceHeaderLine()
{
    return R"({"vondTrace":1,"tool":"0.1","time":"2026-11-22T12:30:00Z","core":"libVondCore.so",)"
           R"("coreBuildId":"5a1c","app":"libVondApp.so","appBuildId":""})"
           "\n";
}

std::string BeginLine(const SCallText &call)
{
    return R"({"begin":)" + std::to_string(call.index) + R"(,"function":")" + call.function +
           R"(","thread":11,"pid":10,"startNs":)" + std::to_string(1000 * call.index) + "}\n";
}

std::string EndLine(const SCallText &call)
{
    return R"({"index":)" + std::to_string(call.index) + R"(,"function":")" + call.function +
           R"(","handle":)" + std::to_string(call.handle) + R"(,"timeout":10000,"request":)" +
           call.request + R"(,"answer":)" + call.answer + R"(,"result":)" +
           std::to_string(call.result) + R"(,"text":")" + call.text + R"(","status":)" +
           std::to_string(call.status) + R"(,"durationNs":)" + std::to_string(call.durationNs) +
           "}\n";
}

std::string CallLines(const SCallText &call)
{
    return BeginLine(call) + EndLine(call);
}

std::string NoteLine(const std::string &text)
{
    return R"({"note":")" + text + R"(","startNs":1})" + "\n";
}
