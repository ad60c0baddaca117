#include "Simulator/door/Errors.h"

#include <cstdio>

namespace {

// An array has no end to run: the library can go while the thread lives.
thread_local char t_reason[1024];

}  // namespace

int32_t ReportError(const char *reason, const char *consequence)
{
    std::snprintf(t_reason, sizeof(t_reason), "%s", reason);
    std::fprintf(stderr, "VondSim: %s%s\n", reason, consequence);
    return -1;
}

const char *LastError()
{
    return t_reason;
}
