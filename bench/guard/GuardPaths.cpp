// Ten paths of the product, each beside a floor, for scripts/guard.sh, which counts their instructions.
#include "bench/guard/GuardPaths.h"

#include <QApplication>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Model/ModelResources.h"
#include "Simulator/VondSim.h"
#include "bench/BenchMain.h"
#include "tests/common/CalProfile.h"

int main(int argc, char **argv)
{
    SetUpBench();
    QApplication application(argc, argv);
    InitModelResources();
    VondSim_SetProfileText(kLargestCalProfile);
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    CountDocumentPaths(updater);
    CountPagePaths();
    CountFilePaths();
    return 0;
}
