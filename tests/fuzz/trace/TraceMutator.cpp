// Alters a line of a trace so that it stays JSON, or takes, doubles or swaps lines.
#include <iterator>

#include <QList>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

const char *const kTexts[] = {"VOND_NRf_TestStop_r",
                              "VOND_MMRf_GetPdValueV7_r",
                              "VOND_MMRf_RssiV7_r",
                              "VOND_NRf_GetDlFreqV7_r",
                              "VOND_GetErrorString",
                              "VOND_Reboot",
                              "01000000",
                              "00f6",
                              "012",
                              "0g",
                              "",
                              "Success",
                              "2026-11-22T12:30:00Z",
                              "\n",
                              "\u0080"};

QString AnyText(std::mt19937 &random)
{
    return QString::fromUtf8(FuzzOne(kTexts, random));
}

const SJsonWords &TraceWords()
{
    static const SJsonWords kWords{
        {"vondTrace",  "tool",  "time",   "core",      "coreBuildId", "app",
         "appBuildId", "begin", "index",  "function",  "thread",      "pid",
         "startNs",    "note",  "handle", "timeout",   "request",     "answer",
         "result",     "text",  "status", "durationNs"},
        {0, 1, 2, 3, -1, 0.5, 13001, 4294967295.0, 4294967296.0, 2147483648.0, 1e300},
        &AnyText};
    return kWords;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QList<QByteArray> lines = input.split('\n');
    const int line = FuzzBelow(random, lines.size());
    switch (FuzzBelow(random, 6)) {
    case 0:
        lines.removeAt(line);
        break;
    case 1:
        lines.insert(line, lines[FuzzBelow(random, lines.size())]);
        break;
    case 2:
        lines.swapItemsAt(line, FuzzBelow(random, lines.size()));
        break;
    default:
        lines[line] = MutateJson(lines[line], TraceWords(), random).simplified();
    }
    return lines.join('\n');
}
