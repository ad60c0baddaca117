// quorlin serve
#include <CLI/CLI.hpp>
#include <memory>

#include "Cli/Commands.h"
#include "Cli/runner/RunnerCommands.h"
#include "Runner/serve/ServeRun.h"

void AddServeCommand(CLI::App &app, int &exitCode)
{
    struct SGiven
    {
        SGivenBench bench;
        bool allowTransmit = false;
        bool allowWrite = false;
        std::optional<double> maxDbm;
    };
    const auto given = std::make_shared<SGiven>();
    CLI::App *command =
        app.add_subcommand("serve", "the tool for a program: JSON-RPC on stdin and stdout");
    auto *power =
        command->add_option("--max-dbm", given->maxDbm, "the highest TX power that may be sent");
    command->add_flag("--allow-transmit", given->allowTransmit, "presses that transmit are allowed")
        ->needs(power);
    command->add_flag("--allow-write", given->allowWrite, "Write is allowed");
    AddBenchOptions(*command, given->bench);
    command->callback([given, &exitCode] {
        exitCode = RunServe({.bench = BenchOptionsOf(given->bench),
                             .limits = {.allowTransmit = given->allowTransmit,
                                        .maxDbm = given->maxDbm,
                                        .allowWrite = given->allowWrite},
                             .isVerbose = given->bench.isVerbose});
    });
}
