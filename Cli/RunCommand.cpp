#include <cstdio>
#include <exception>

#include "Cli/Commands.h"
#include "Trace/lines/PrintableText.h"

void RunCommand(int &exitCode, const std::function<int()> &command)
{
    try {
        exitCode = command();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "quorlin: %s\n", PrintableText(error.what()).c_str());
        exitCode = kExitTrouble;
    }
}
