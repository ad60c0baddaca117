/* A host in plain C, linked with a pair. Its first argument says what it does. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "tests/tap/door/host/TapHost.h"

struct SWork {
    const char *name;
    int (*run)(void);
};

static const struct SWork kWorks[] = {
    {"calls", &RunCalls},     {"threads", &RunThreads}, {"forks", &RunForks},
    {"early", &RunEarlyForks}, {"exit", &RunExit},       {"stuck", &RunStuck},
    {"cancel", &RunCancel},   {"jump", &RunJump},       {"signals", &RunSignals},
    {"notes", &RunNotes},
};

int main(int argc, char **argv)
{
    if (argc == 3 && strcmp(argv[1], "many") == 0)
        return RunMany(atoi(argv[2]));
    for (size_t i = 0; argc == 2 && i < sizeof(kWorks) / sizeof(kWorks[0]); ++i) {
        if (strcmp(argv[1], kWorks[i].name) == 0)
            return kWorks[i].run();
    }
    fprintf(stderr, "TapHost: what?\n");
    return 99;
}
