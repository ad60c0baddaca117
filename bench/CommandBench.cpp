// One command built from a packaged document, beside filling the record from numbers at hand.
#include <benchmark/benchmark.h>

#include <QJsonObject>

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "bench/BenchDocuments.h"

namespace {

void CommandFromDocument(benchmark::State &state)
{
    const QJsonObject document = PackagedContRx();
    const CNrCoreCmdBuilder builder;
    for (auto _ : state)
        benchmark::DoNotOptimize(builder.GetContRxCmdV7(document));
}
BENCHMARK(CommandFromDocument);

void CommandRecordAlone(benchmark::State &state)
{
    int16_t gain = 1923;
    benchmark::DoNotOptimize(gain);
    for (auto _ : state) {
        SMMContRxCmdV7 command = {};
        command.routeKind = 3;
        command.dlBandwidth = 5000;
        command.band = 1;
        command.rxRoute = 1;
        command.path = 3;
        command.gain.simultaneous.path0MainRfGain = gain;
        command.gain.simultaneous.path0DivRfGain = gain;
        command.dlFrequency = 1950000;
        benchmark::DoNotOptimize(command);
    }
}
BENCHMARK(CommandRecordAlone);

}  // namespace
