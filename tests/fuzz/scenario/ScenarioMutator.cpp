// Alters a scenario so that it stays JSON: with its keys, functions and numbers.
#include <iterator>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/common/Mutator.h"

namespace {

constexpr const char *kTexts[] = {
    "*",
    "fail",
    "status",
    "delay",
    "nullText",
    "noise",
    "bytes",
    "powerCut",
    "stuck",
    "type1",
    "type2",
    "apt",
    "00ff",
    "loss[0][0].hpm",
    "pa[0].paGain[3]",
    "VOND_NRf_RsrpV7_r",
    "VOND_NRf_GetMixRxReportV7_r",
    "VOND_MMRf_GetPdValueV7_r",
    "VOND_MMRf_SetCalDataV7_r",
    "VOND_MMRf_SingleToneTxV7_r",
    "VOND_NRf_TestStop_r",
    "VOND_GetErrorString",
};

QString Text(std::mt19937 &random)
{
    return QLatin1String(FuzzOne(kTexts, random));
}

const SJsonWords &Words()
{
    static const SJsonWords kWords{{"name",        "about",         "seed",          "steps",
                                    "when",        "function",      "call",          "every",
                                    "probability", "fault",         "radio",         "plugged",
                                    "kind",        "result",        "status",        "ms",
                                    "nth",         "hex",           "offset",        "block",
                                    "torn",        "record",        "route",         "bandwidth",
                                    "field",       "fluctuationDb", "noiseFigureDb", "temperatureC",
                                    "levelDbm",    "pathLossDb",    "powerDetector", "slope",
                                    "offsetDb",    "default",       "n78",           "n1",
                                    "1",           "105",           "65535"},
                                   {0, 1, 2, 3, 6, 85, 125, -1, 0.5, 0.999, -65, -200, 30, 31,
                                    65535, 4294967295.0, 4294967296.0, 1.7e308, 5e-324},
                                   Text};
    return kWords;
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &random)
{
    return MutateJson(input, Words(), random);
}
