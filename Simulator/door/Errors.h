// Failures of the simulated DUT's own functions: one line on stderr, and the words for whoever asks.
//
//   return Guarded("; nothing is changed", [&] { simulator.SetScenario(name); });
#pragma once

#include <cstdint>
#include <exception>

// Keeps the reason for the calling thread, and prints it with the consequence behind it. Returns -1.
int32_t ReportError(const char *reason, const char *consequence);
// The last reason of the calling thread; "" when there was none.
const char *LastError();

// Runs a job that may throw: 0, or -1 with the reason told.
template <class Job>
int32_t Guarded(const char *consequence, const Job &job)
{
    try {
        job();
        return 0;
    } catch (const std::exception &error) {
        return ReportError(error.what(), consequence);
    }
}
