// Alters a request so that it stays one, or the order of the lines.
#include <QByteArrayList>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

const char *const kTexts[] = {"2.0",
                              "describe",
                              "set",
                              "get",
                              "press",
                              "wait",
                              "rfOff",
                              "close",
                              "RSSI",
                              "RSRP",
                              "APT Profile",
                              "band",
                              "n77",
                              "Start",
                              "Stop",
                              "Read",
                              "nope",
                              "",
                              "request.group1.band",
                              "a\nb"};
const char *const kLines[] = {
    R"({"jsonrpc":"2.0","id":1,"method":"describe"})",
    R"({"jsonrpc":"2.0","id":2,"method":"set","params":{"page":"RSSI","name":"band","value":"n77"}})",
    R"({"jsonrpc":"2.0","id":3,"method":"get","params":{"page":"RSSI"}})",
    R"({"jsonrpc":"2.0","id":"a","method":"wait","params":{"time":0.01}})",
    R"({"jsonrpc":"2.0","method":"rfOff"})",
    R"({"jsonrpc":"2.0","id":null,"method":"close"})",
    "[]",
    ""};

const SJsonWords &Words()
{
    static const SJsonWords words{
        {"jsonrpc", "id", "method", "params", "page", "name", "value", "values", "button", "rows",
         "time", "timeout"},
        {0, 1, 2, -1, 0.001, 0.5, 64, 1e9, -1e300},
        [](std::mt19937 &random) { return QString::fromUtf8(FuzzOne(kTexts, random)); }};
    return words;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    QByteArrayList lines = input.split('\n');
    const int at = FuzzBelow(random, lines.size());
    switch (FuzzBelow(random, 8)) {
    case 0:
        lines.removeAt(at);
        break;
    case 1:
        lines.swapItemsAt(at, FuzzBelow(random, lines.size()));
        break;
    case 2:
        lines.insert(at, FuzzOne(kLines, random));
        break;
    default:
        lines[at] = MutateJson(lines[at], Words(), random);
    }
    return lines.join('\n');
}
