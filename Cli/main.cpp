// The command line beside the bench host.
#include <CLI/CLI.hpp>

#include "Cli/Commands.h"

int main(int argc, char **argv)
{
    CLI::App app("Works with the radio of a device under test, without a window.", "quorlin");
    app.set_version_flag("--version", "quorlin " QUORLIN_VERSION);
    app.require_subcommand(1);
    app.failure_message([](const CLI::App *, const CLI::Error &error) {
        return "quorlin: " + std::string(error.what()) + "; quorlin --help tells more\n";
    });
    int exitCode = kExitGood;
    AddTraceCommand(app, exitCode);
    AddDecodeCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? kExitGood : kExitTrouble;
    }
    return exitCode;
}
