// quorlin run: plans, carried out.
#include <CLI/CLI.hpp>
#include <memory>
#include <stdexcept>

#include "Cli/Commands.h"
#include "Cli/runner/RunnerCommands.h"
#include "Runner/bench/BenchApplication.h"
#include "Runner/run/PlanRun.h"
#include "Runner/run/RecordedRun.h"

namespace {

struct SRunCommand
{
    SGivenBench bench;
    std::vector<std::string> plans;
    std::vector<std::string> defines;
    std::string out;
    std::string record;
    SRunOptions options;
};

DefineMap DefinesOf(const std::vector<std::string> &texts)
{
    DefineMap defines;
    for (const std::string &text : texts) {
        const std::size_t at = text.find('=');
        const std::string name = text.substr(0, at);
        if (at == std::string::npos || !IsDefineName(name))
            throw std::runtime_error("--define " + text + ": it is NAME=VALUE, such as hours=0.01");
        if (!defines.emplace(name, text.substr(at + 1)).second)
            throw std::runtime_error("--define " + name + " is there twice");
    }
    return defines;
}

int Run(SRunCommand &command)
{
    for (const std::string &plan : command.plans) {
        const QString file = QString::fromStdString(plan);
        if (command.options.plans.contains(file))
            throw std::runtime_error(plan + " is there twice");
        command.options.plans << file;
    }
    command.options.defines = DefinesOf(command.defines);
    command.options.out = QString::fromStdString(command.out);
    command.options.bench = BenchOptionsOf(command.bench);
    if (!command.record.empty())
        if (const QString error = RestartRecorded(QString::fromStdString(command.record));
            !error.isEmpty())
            throw std::runtime_error(error.toStdString());
    const std::unique_ptr<QApplication> application = MakeBenchApplication(command.bench.isVerbose);
    return RunPlans(command.options);
}

}  // namespace

void AddRunCommand(CLI::App &app, int &exitCode)
{
    auto given = std::make_shared<SRunCommand>();
    CLI::App *command = app.add_subcommand("run", "Carries out plans, and writes reports");
    command->add_option("PLAN", given->plans, "plan files (YAML or JSON)")->required();
    AddBenchOptions(*command, given->bench);
    command->add_option("--out", given->out,
                        "folder of the reports, new or empty; quorlin-PLAN-TIME unless told");
    command->add_option("--define", given->defines, "NAME=VALUE for ${NAME} in the plans")
        ->allow_extra_args(false);
    command->add_flag("--allow-transmit", given->options.mayTransmit,
                      "let plans transmit that say so, up to their max_dbm");
    command->add_flag("--allow-write", given->options.mayWrite,
                      "let plans write to the DUT's flash");
    command->add_flag("--check", given->options.isCheck, "find all errors, start nothing");
    command->add_flag("--stop-on-failure", given->options.endsAtFailure,
                      "end at the first expectation that does not hold");
    command->add_option("--record", given->record, "records the calls to the DUT in this file");
    command->callback(
        [given, &exitCode] { RunCommand(exitCode, [given] { return Run(*given); }); });
}
