// The paths of the regression guard, by what they work on. bench/guard.csv has their ratios.
#pragma once

class CNrDataModelCapUpdater;

void CountDocumentPaths(CNrDataModelCapUpdater &updater);
void CountPagePaths();
void CountFilePaths();
