// The capability update: each page's driver on the fullest DUT, beside the patched document's own
// text there and back; the entries of a step as they grow.
#include <benchmark/benchmark.h>

#include <QFile>

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/HwLabels.h"
#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "bench/BenchMain.h"

namespace {

QJsonObject Template(const SPageRow &page)
{
    QFile file(page.resource);
    file.open(QIODevice::ReadOnly);
    return ModelFromText(file.readAll().toStdString());
}

// The tables are read once, as they are once a connection.
CNrDataModelCapUpdater &Updater()
{
    static CNrDataModelCapUpdater updater;
    return updater;
}

void Patch(benchmark::State &state)
{
    const SPageRow &page = FindPage(static_cast<EPageId>(state.range(0)));
    const QJsonObject original = Template(page);
    for (auto _ : state) {
        QJsonObject document = original;
        benchmark::DoNotOptimize((Updater().*page.driver)(document));
    }
    state.SetLabel(page.name);
}

void PatchedText(benchmark::State &state)
{
    const SPageRow &page = FindPage(static_cast<EPageId>(state.range(0)));
    QJsonObject document = Template(page);
    (Updater().*page.driver)(document);
    const std::string text = ModelToText(document);
    for (auto _ : state)
        benchmark::DoNotOptimize(ModelToText(ModelFromText(text)));
    state.SetLabel(std::to_string(text.size() / 1000) + " kB");
}

// As many labels as a step has, in the order of the DUT's tables, into a document.
void StepEntries(benchmark::State &state)
{
    constexpr SHwLabelPaths kPaths{SPath{"group", "fe", ""}, {}, {}, {}, {}};
    QStringList keys;
    for (int i = 0; i < state.range(0) / static_cast<int>(kHwLabels); ++i)
        keys.append(QStringLiteral("%1,%2kHz,%3 RB").arg(i * 7919 % 65536).arg(i % 3).arg(i % 271));
    const STxBwRegionHw hw = {};
    for (auto _ : state) {
        QJsonObject document{
            {"group", QJsonObject{{"memberProperty", QJsonObject{{"fe", "template"}}}}}};
        CHwLabelTable table;
        for (const QString &key : qAsConst(keys))
            table.Put(key, HwLabels(hw));
        CDocumentWriter writer(document);
        if (!WriteHwLabels(writer, kPaths, {}, table))
            state.SkipWithError("not written");
    }
}
BENCHMARK(StepEntries)->Arg(5000)->Arg(20000)->Arg(80000)->Unit(benchmark::kMillisecond);

// By page id, see Controller/core/PageTable.h.
void EachPage(benchmark::internal::Benchmark *benchmark)
{
    for (const int id : {0, 2, 4, 5, 6, 7, 8, 9, 13})
        benchmark->Arg(id);
    benchmark->Unit(benchmark::kMicrosecond);
}
BENCHMARK(Patch)->Apply(EachPage);
BENCHMARK(PatchedText)->Apply(EachPage);

constexpr SRatio kRatios[] = {
    {"Patch/0", "PatchedText/0", 1.5},
    {"Patch/2", "PatchedText/2", 1.5},
    {"Patch/4", "PatchedText/4", 1.5},
    {"Patch/5", "PatchedText/5", 1.5},
    {"Patch/6", "PatchedText/6", 1.5},
    {"Patch/7", "PatchedText/7", 1.5},
    {"Patch/8", "PatchedText/8", 1.5},
    {"Patch/9", "PatchedText/9", 1.5},
    {"Patch/13", "PatchedText/13", 1.5},
    {"StepEntries/20000", "StepEntries/5000", 4.5},
    {"StepEntries/80000", "StepEntries/20000", 4.5},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    InitModelResources();
    VondSim_SetProfile("largest");
    Updater().ResetCapabilityCache();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
