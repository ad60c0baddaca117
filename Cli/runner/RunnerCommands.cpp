#include "Cli/runner/RunnerCommands.h"

#include <CLI/CLI.hpp>

#include "Host/Options.h"

namespace {

// Empty when it is one.
std::string CheckHandle(const std::string &text)
{
    const bool isHandle = ReadHandle(QString::fromStdString(text)).has_value();
    return isHandle ? std::string() : "\"" + text + "\" is no handle: 1 or 0x1f, 32 bits at most";
}

}  // namespace

void AddDutOptions(CLI::App &command, SGivenDut &given)
{
    auto *profile = command.add_option("--profile", given.profile,
                                       "the simulated DUT: a profile's name, or a file");
    auto *handle = command.add_option("--handle", given.handle, "the target handle, 1 unless told")
                       ->check(CheckHandle);
    auto *link =
        command.add_option("--link", given.link, "a library that opens the link to the DUT");
    profile->excludes(handle)->excludes(link);
    handle->excludes(link);
}

void AddBenchOptions(CLI::App &command, SGivenBench &given)
{
    AddDutOptions(command, given);
    command
        .add_option("--scenario", given.scenario,
                    "what happens to the simulated DUT: a scenario's name, or a file")
        ->excludes(command.get_option("--handle"))
        ->excludes(command.get_option("--link"));
    command.add_option("--plugin", given.plugin, "the plug-in, if not the one beside the program");
    command.add_flag("--verbose", given.isVerbose, "debug lines of the tool on stderr");
}

SBenchOptions BenchOptionsOf(const SGivenDut &given)
{
    SBenchOptions options;
    options.profile = QString::fromStdString(given.profile);
    options.linkFile = QString::fromStdString(given.link);
    options.handle = ReadHandle(QString::fromStdString(given.handle)).value_or(options.handle);
    return options;
}

SBenchOptions BenchOptionsOf(const SGivenBench &given)
{
    SBenchOptions options = BenchOptionsOf(static_cast<const SGivenDut &>(given));
    options.scenario = QString::fromStdString(given.scenario);
    options.pluginFile = QString::fromStdString(given.plugin);
    return options;
}
