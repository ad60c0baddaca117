// The command line beside the bench host.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

#include "Cli/Commands.h"
#include "Trace/lines/PrintableText.h"

namespace {

// A command that is none leaves another one missing, which is not what was wrong.
std::string WordsOf(const CLI::App &app, const CLI::Error &error)
{
    const std::vector<std::string> rest = app.remaining(true);
    const bool isMissing = error.get_name() == "RequiredError";
    return PrintableText(isMissing && !rest.empty() ? "unexpected: " + rest.front() : error.what());
}

int RunCommandLine(int argc, char **argv)
{
    CLI::App app("Works with the radio of a device under test, without a window.", "quorlin");
    app.set_version_flag("--version", "quorlin " QUORLIN_VERSION);
    app.require_subcommand(1);
    app.failure_message([](const CLI::App *program, const CLI::Error &error) {
        return "quorlin: " + WordsOf(*program, error) + "; quorlin --help tells more\n";
    });
    int exitCode = kExitGood;
    AddTraceCommand(app, exitCode);
    AddDecodeCommand(app, exitCode);
    AddRunCommand(app, exitCode);
    AddDescribeCommand(app, exitCode);
    AddServeCommand(app, exitCode);
    AddCalCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? kExitGood : kExitTrouble;
    }
    return exitCode;
}

}  // namespace

int main(int argc, char **argv)
{
    try {
        return RunCommandLine(argc, argv);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "quorlin: %s\n", error.what());
        return kExitTrouble;
    }
}
