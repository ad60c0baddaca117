// quorlin describe [PAGE] [--json]
#include <CLI/CLI.hpp>
#include <memory>

#include "Cli/Commands.h"
#include "Cli/runner/RunnerCommands.h"
#include "Runner/describe/DescribeRun.h"

void AddDescribeCommand(CLI::App &app, int &exitCode)
{
    struct SGiven
    {
        SGivenBench bench;
        std::string page;
        bool isJson = false;
    };
    const auto given = std::make_shared<SGiven>();
    CLI::App *command = app.add_subcommand(
        "describe", "the pages; of one its buttons, members and tables, as they are now");
    command->add_option("page", given->page, "title or class name of a page");
    command->add_flag("--json", given->isJson, "as JSON, by docs/describe.schema.json");
    AddBenchOptions(*command, given->bench);
    command->callback([given, &exitCode] {
        exitCode = RunDescribe({.bench = BenchOptionsOf(given->bench),
                                .page = QString::fromStdString(given->page),
                                .isJson = given->isJson,
                                .isVerbose = given->bench.isVerbose});
    });
}
