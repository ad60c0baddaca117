// One call through the door to the target, as the table of the door panel has it. Its records stay where
// they are: the source reads them when somebody looks (DoorSource.h).
#pragma once

#include <cstdint>
#include <vector>

#include <QString>

#include "Trace/dictionary/Functions.h"

struct SDoorCall
{
    uint64_t number = 0;  // from 0, in the order in which the calls began
    uint64_t place = 0;   // where the source has its records; counts upwards
    uint64_t size = 0;    // of the records there, as the source counts it
    const SFunction *function = nullptr;
    int64_t startUnixMs = 0;  // ms since 1970
    uint64_t startNs = 0;     // since the source began
    uint64_t durationNs = 0;
    uint64_t thread = 0;
    uint64_t process = 0;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    int32_t result = 0;
    uint32_t status = 0;  // the target's own verdict
    QString text;         // of the result
    bool isEnded = false;
    bool hasBadVerdict = false;  // a calibration transfer whose answer tells a failure

    bool HasFailed() const { return isEnded && (result != 0 || status != 0 || hasBadVerdict); }
};

// What came since the last look.
struct SDoorNews
{
    bool isReset = false;  // the calls that were there before have gone
    // Calls that began, and calls that ended. One that was told open comes again, by its number, when it
    // has ended.
    std::vector<SDoorCall> calls;
    bool hasMore = false;  // more is there than the time allowed to read
};
