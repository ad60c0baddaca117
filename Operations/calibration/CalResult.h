// Codes of the calibration items, and a failure with its words.
//
// The codes are rows of the status table. An empty text stands for a code whose row says it all:
// the user is shown the row's advice.
//
//   return {kCalNoData, {}};
#pragma once

#include <cstdint>

#include <QString>

constexpr uint32_t kCalSuccess = 0;
constexpr uint32_t kCalGeneralError = 1;
constexpr uint32_t kCalNotRun = 2;  // there was nothing to do
constexpr uint32_t kCalLibraryFailed = 3;
constexpr uint32_t kCalNoFile = 50;
constexpr uint32_t kCalNoData = 51;         // the file has none of the sections
constexpr uint32_t kCalIncomplete = 52;     // a section lacks a key that the target needs
constexpr uint32_t kCalFileProblem = 53;    // a section could not be taken over
constexpr uint32_t kCalChipMismatch = 200;  // the file is of another RF chip
constexpr uint32_t kCalTargetFailed = 203;

constexpr char kNoRouteInfo[] = "Fail to get the route info";

struct SCalFault
{
    uint32_t code = kCalSuccess;
    QString text;

    explicit operator bool() const { return code != kCalSuccess; }
};
