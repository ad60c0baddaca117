#include <QApplication>

#include "Model/ModelResources.h"
#include "bench/BenchMain.h"

namespace {

constexpr SRatio kRatios[] = {
    {"PageInit", "PageBareForm", 0},
    {"PagePackage", "PageReadWidgets", 0},
    {"ColumnTableInit", "ColumnTableBareCells", 0},
    {"ColumnTableInitUnseen", "ColumnTableBareCells", 0},
    {"ColumnTableUpdate", "ColumnTableReadCells", 0},
    {"ColumnTablePackage", "ColumnTableReadCells", 0},
    {"ColumnTableUpdateUnseen", "ColumnTableReadCells", 0},
    {"ColumnTablePackageUnseen", "ColumnTableReadCells", 0},
    {"FirstVisitRxPathloss", "BareVisitRxPathloss", 1.3},
    {"FirstVisitApt", "BareVisitApt", 1.3},
    {"Append/1000", "Append/0", 1.5},
    {"Append/10000", "Append/0", 1.5},
    {"Append/0", "Append/1000", 1.5},
    {"Append/0", "Append/10000", 1.5},
    {"Append/10000", "Append/1000", 1.5},
    {"Append/1000", "Append/10000", 1.5},
    {"Append/0", "AppendItems/0", 2},
    {"Append/1000", "AppendItems/1000", 2},
    {"Append/10000", "AppendItems/10000", 2},
    {"BandChangeLargeDocument", "BandChangeSmallDocument", 0},
    {"BandChangeLargeDocument", nullptr, 16},
    {"BandChangeLogged", nullptr, 16},
    {"BandChangeSmallDocument", "BandChangeUnrecorded", 1.2},
};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    QApplication application(argc, argv);
    InitModelResources();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
