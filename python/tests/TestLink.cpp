// A link library of the tests: gives handle 7, and writes a line for each of its calls into the file of
// TEST_LINK_LOG.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void Tell(const char *words, uint32_t handle)
{
    const char *log = std::getenv("TEST_LINK_LOG");
    std::FILE *file = log ? std::fopen(log, "a") : nullptr;
    if (!file)
        return;
    std::fprintf(file, "%s %u\n", words, handle);
    std::fclose(file);
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) uint32_t VondLink_Open(void)
{
    Tell("open", 7);
    return std::getenv("TEST_LINK_FAILS") ? 0 : 7;
}

__attribute__((visibility("default"))) void VondLink_Close(uint32_t handle)
{
    Tell("close", handle);
}
}
