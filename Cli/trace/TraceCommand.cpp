#include <memory>

#include "Cli/Commands.h"
#include "Cli/trace/TraceDiff.h"
#include "Cli/trace/TraceShow.h"
#include "Cli/trace/TraceSummary.h"

namespace {

void AddShow(CLI::App &trace, int &exitCode)
{
    CLI::App *const show =
        trace.add_subcommand("show", "Shows the calls of a trace, field by field");
    const auto options = std::make_shared<STraceShowOptions>();
    show->add_option("FILE", options->path, "The trace")->required();
    show->add_option("--call", options->call, "The call of that index alone");
    show->add_option("--function", options->function, "Calls of that function alone");
    show->add_flag("--failed", options->isFailedOnly, "Calls that failed alone");
    show->add_flag("--json", options->isJson, "As data");
    show->callback(
        [options, &exitCode] { RunCommand(exitCode, [&] { return ShowTrace(*options); }); });
}

void AddSummary(CLI::App &trace, int &exitCode)
{
    CLI::App *const summary = trace.add_subcommand(
        "summary", "Counts calls, failures and open calls, and tells durations, by function");
    const auto path = std::make_shared<std::string>();
    summary->add_option("FILE", *path, "The trace")->required();
    summary->callback(
        [path, &exitCode] { RunCommand(exitCode, [&] { return SummarizeTrace(*path); }); });
}

void AddDiff(CLI::App &trace, int &exitCode)
{
    CLI::App *const diff = trace.add_subcommand(
        "diff", "Tells in which calls and fields two traces differ; exit code 1 when they do");
    const auto options = std::make_shared<STraceDiffOptions>();
    diff->add_option("A", options->one, "A trace")->required();
    diff->add_option("B", options->other, "Another one")->required();
    diff->add_option("--ignore", options->ignored,
                     "A field to leave out, as decode names it, or \"readings\": what was measured")
        ->allow_extra_args(false)
        ->type_name("FIELD");
    diff->add_flag("--timing", options->isTimed,
                   "Compare header, times, durations, thread and process, too");
    diff->add_flag("--json", options->isJson, "As data");
    diff->callback(
        [options, &exitCode] { RunCommand(exitCode, [&] { return DiffTraces(*options); }); });
}

}  // namespace

void AddTraceCommand(CLI::App &app, int &exitCode)
{
    CLI::App *const trace =
        app.add_subcommand("trace", "Reads what passed through the door to the target");
    trace->require_subcommand(1);
    AddShow(*trace, exitCode);
    AddSummary(*trace, exitCode);
    AddDiff(*trace, exitCode);
}
