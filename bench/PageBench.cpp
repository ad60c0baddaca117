// The Continuous RX page, and a 64 x 8 column table: Init, Update, Package beside their floors.
#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>

#include "Model/ModelText.h"
#include "View/Rx/NrContRxDockWidgetV7.h"
#include "View/editors/LateEditors.h"
#include "View/engine/WidgetIndex.h"
#include "bench/BenchDocuments.h"
#include "bench/BenchPage.h"

namespace {

std::string ContRxText()
{
    QFile file(":/NrContRxV7.json");
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
}

class COpenContRx : public CNrContRxDockWidgetV7
{
public:
    COpenContRx() : CNrContRxDockWidgetV7(nullptr) {}
    void RequestDataModel() override {}
    using CAutoBindingDataModelDockWidget::PackageMemberValue;
};

void PageBareForm(benchmark::State &state)
{
    for (auto _ : state) {
        COpenContRx page;
        page.show();
    }
}
BENCHMARK(PageBareForm)->Unit(benchmark::kMillisecond);

void PageInit(benchmark::State &state)
{
    const std::string text = ContRxText();
    for (auto _ : state) {
        COpenContRx page;
        page.show();
        page.Slot_GetDataModelDone(text);
    }
}
BENCHMARK(PageInit)->Unit(benchmark::kMillisecond);

void PagePackage(benchmark::State &state)
{
    COpenContRx page;
    page.show();
    page.Slot_GetDataModelDone(ContRxText());
    for (auto _ : state)
        benchmark::DoNotOptimize(page.PackageMemberValue());
}
BENCHMARK(PagePackage)->Unit(benchmark::kMicrosecond);

// The floor of Package: find the widgets, make the document's text.
void PageReadWidgets(benchmark::State &state)
{
    COpenContRx page;
    page.show();
    page.Slot_GetDataModelDone(ContRxText());
    const QJsonObject document = ModelFromText(page.PackageMemberValue());
    for (auto _ : state) {
        const CWidgetIndex index(&page);
        benchmark::DoNotOptimize(index.BoundWidgets().size());
        benchmark::DoNotOptimize(ModelToText(document));
    }
}
BENCHMARK(PageReadWidgets)->Unit(benchmark::kMicrosecond);

// isSeen: with editors, which a table without a look does not have.
void InitColumnTable(benchmark::State &state, bool isSeen)
{
    const QJsonObject document = ColumnDocument(0);
    for (auto _ : state) {
        CBenchPage page;
        const QTableWidget *table = page.AddTable(kBenchTable);
        page.Open(document);
        if (isSeen)
            EnsureEditors(table);
    }
}
BENCHMARK_CAPTURE(InitColumnTable, ColumnTableInit, true)
    ->Name("ColumnTableInit")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(InitColumnTable, ColumnTableInitUnseen, false)
    ->Name("ColumnTableInitUnseen")
    ->Unit(benchmark::kMillisecond);

// The floor of Init: the same widgets in the same table.
void ColumnTableBareCells(benchmark::State &state)
{
    for (auto _ : state) {
        CBenchPage page;
        QTableWidget *table = page.AddTable("table");
        table->setRowCount(kBenchRows);
        table->setColumnCount(kBenchColumns);
        for (int r = 0; r < kBenchRows; ++r) {
            for (int c = 0; c < kBenchColumns; ++c)
                table->setCellWidget(r, c, new QDoubleSpinBox(table));
        }
        page.show();
    }
}
BENCHMARK(ColumnTableBareCells)->Unit(benchmark::kMillisecond);

void UpdateColumnTable(benchmark::State &state, bool isSeen)
{
    CBenchPage page;
    const QTableWidget *table = page.AddTable(kBenchTable);
    const QJsonObject document = ColumnDocument(0);
    page.Open(document);
    if (isSeen)
        EnsureEditors(table);
    for (auto _ : state)
        page.UpdateWidget(document);
}
BENCHMARK_CAPTURE(UpdateColumnTable, ColumnTableUpdate, true)
    ->Name("ColumnTableUpdate")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(UpdateColumnTable, ColumnTableUpdateUnseen, false)
    ->Name("ColumnTableUpdateUnseen")
    ->Unit(benchmark::kMicrosecond);

void PackageColumnTable(benchmark::State &state, bool isSeen)
{
    CBenchPage page;
    const QTableWidget *table = page.AddTable(kBenchTable);
    page.Open(ColumnDocument(0));
    if (isSeen)
        EnsureEditors(table);
    for (auto _ : state)
        benchmark::DoNotOptimize(page.PackageMemberValue());
}
BENCHMARK_CAPTURE(PackageColumnTable, ColumnTablePackage, true)
    ->Name("ColumnTablePackage")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PackageColumnTable, ColumnTablePackageUnseen, false)
    ->Name("ColumnTablePackageUnseen")
    ->Unit(benchmark::kMicrosecond);

// The floor of Update and Package: touch every cell's text once.
void ColumnTableReadCells(benchmark::State &state)
{
    CBenchPage page;
    QTableWidget *table = page.AddTable(kBenchTable);
    page.Open(ColumnDocument(0));
    EnsureEditors(table);
    for (auto _ : state) {
        for (int r = 0; r < kBenchRows; ++r) {
            for (int c = 0; c < kBenchColumns; ++c)
                benchmark::DoNotOptimize(
                    static_cast<QDoubleSpinBox *>(table->cellWidget(r, c))->text());
        }
    }
}
BENCHMARK(ColumnTableReadCells)->Unit(benchmark::kMicrosecond);

}  // namespace
