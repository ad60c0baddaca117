// Documents: a write at depth 6, and the text of a page's document there and back.
#include <benchmark/benchmark.h>

#include <QFile>

#include "Model/JsonPath.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "bench/BenchMain.h"

namespace {

QJsonObject ContRxDocument()
{
    InitModelResources();
    QFile file(":/NrContRxV7.json");
    file.open(QIODevice::ReadOnly);
    return ModelFromText(file.readAll().toStdString());
}

void DocumentWriteAtDepth6(benchmark::State &state)
{
    QJsonObject document = ContRxDocument();
    const QString path = "cmdIf.request.group1.memberProperty.band.caption";
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        ModifyJsonValue(document, path, flip ? "Band" : "band", 0);
    }
}
BENCHMARK(DocumentWriteAtDepth6);

void DocumentReadAtDepth6(benchmark::State &state)
{
    QJsonObject document = ContRxDocument();
    const QString path = "cmdIf.request.group1.memberProperty.band.caption";
    for (auto _ : state)
        benchmark::DoNotOptimize(GetJsonValue(document, path));
}
BENCHMARK(DocumentReadAtDepth6);

void DocumentThroughText(benchmark::State &state)
{
    const QJsonObject document = ContRxDocument();
    for (auto _ : state)
        benchmark::DoNotOptimize(ModelFromText(ModelToText(document)));
}
BENCHMARK(DocumentThroughText);

constexpr SRatio kRatios[] = {
    {"DocumentWriteAtDepth6", "DocumentReadAtDepth6", 0},
    {"LeafWrite/50", "LeafWriteMap/50", 0},
    {"LeafWrite/5000", "LeafWriteMap/5000", 5},
    {"LeafWrite/25000", "LeafWriteMap/25000", 0},
    {"LeafWriteAfter100000", "LeafWrite/5000", 0},
    {"CommandFromDocument", "CommandRecordAlone", 0},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
