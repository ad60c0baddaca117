// Runs the benchmarks of a program and prints ratios against floors measured in the same run.
//
// A ratio names two benchmarks: what is measured, and the floor that it cannot be faster than. All
// run five times, in a random order, and the ratio is that of the medians, so that a machine that
// slows down slows both. The aim, where there is one, is printed beside it; nothing fails. Without
// a floor the aim is the time itself, in milliseconds. With QUORLIN_RATIOS the ratios go into the
// file of that name as well, a line each: measured, its milliseconds, floor, its milliseconds,
// ratio, aim.
//
//   static const SRatio kRatios[] = {{"LeafWrite/5000", "LeafWriteMap/5000", 5.0}};
//   int main(int argc, char **argv) { return RunBenchmarks(argc, argv, kRatios, 1); }
#pragma once

struct SRatio
{
    const char *measured;
    const char *floor;  // null: an absolute time
    double aim;         // not to be exceeded; 0 for none
};

// First in main: the tool's logs off, and Qt's offscreen platform unless the environment names one.
void SetUpBench();
int RunBenchmarks(int argc, char **argv, const SRatio *ratios, int count);
