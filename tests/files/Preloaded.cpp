#include "tests/files/Preloaded.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <unistd.h>

namespace {

template <class Function>
void Find(const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

SPreloaded FindAll()
{
    SPreloaded found;
    Find("FailingCalls_Arm", found.arm);
    Find("FailingCalls_Disarm", found.disarm);
    Find("FailingCalls_HasStruck", found.hasStruck);
    Find("FailingCalls_Name", found.name);
    return found;
}

}  // namespace

const SPreloaded &Preloaded()
{
    static const SPreloaded found = FindAll();
    return found;
}

void StartUnderLibrary(char **argv)
{
    if (Preloaded().arm != nullptr)
        return;
    const std::string first = FIRST_PRELOAD;
    const std::string preload = first + (first.empty() ? "" : ":") + FAILING_CALLS;
    setenv("LD_PRELOAD", preload.c_str(), 1);
    if (getenv("QUORLIN_IS_PRELOADED") == nullptr) {
        setenv("QUORLIN_IS_PRELOADED", "1", 1);
        execv("/proc/self/exe", argv);
    }
    std::fprintf(stderr, "%s can't be preloaded\n", FAILING_CALLS);
    std::exit(2);
}
