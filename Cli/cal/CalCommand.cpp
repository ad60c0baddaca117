// quorlin cal: its options, and the way to the module that carries them out.
#include <CLI/CLI.hpp>
#include <csignal>
#include <memory>
#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QLoggingCategory>

#include "Cli/Commands.h"
#include "Cli/cal/CalRequest.h"
#include "Cli/runner/RunnerCommands.h"
#include "Host/LinkLibrary.h"
#include "Host/SimulatedDut.h"

namespace {

constexpr char kModule[] = "/../plugins/libQuorlinCal.so";
constexpr char kProfileVariable[] = "VOND_SIM_PROFILE";

struct SCalCommand
{
    SGivenDut dut;
    SCalRequest request;
};

// What the link brings along is there before the module, as for a host and its plug-in.
int Run(SCalCommand &given)
{
    int argumentCount = 1;
    char programName[] = "quorlin";
    char *arguments[] = {programName, nullptr};
    QLoggingCategory::setFilterRules(QStringLiteral("quorlin.*=false"));
    const QCoreApplication application(argumentCount, arguments);
    std::signal(SIGPIPE, SIG_IGN);  // nobody reads on: no reason to end amid a write

    const SBenchOptions dut = BenchOptionsOf(given.dut);
    QString error;
    CLinkLibrary link;
    given.request.handle = dut.handle;
    if (!dut.linkFile.isEmpty()) {
        if (!link.Open(dut.linkFile, error))
            throw std::runtime_error(error.toStdString());
        given.request.handle = link.Handle();
    }
    if (!dut.profile.isEmpty())
        qputenv(kProfileVariable, dut.profile.toUtf8());
    QLibrary module(QDir::cleanPath(QCoreApplication::applicationDirPath() + kModule));
    module.setLoadHints(QLibrary::PreventUnloadHint);
    using RunCal = int (*)(const SCalRequest &);
    const auto run = reinterpret_cast<RunCal>(module.resolve(kRunCal));
    if (!run)
        throw std::runtime_error(module.errorString().toStdString());
    const QStringList profiles = SimulatedProfiles();
    if (IsUnknownProfile(dut.profile, profiles))
        throw std::runtime_error("there is no profile '" + dut.profile.toStdString() +
                                 "', and no file of that name; profiles: " +
                                 profiles.join(QStringLiteral(", ")).toStdString());
    const int exitCode = run(given.request);
    link.Close();
    return exitCode;
}

// A command of "cal", with what all of them take.
CLI::App *Add(CLI::App &cal, const char *name, const char *what, ECalVerb verb, int &exitCode,
              std::shared_ptr<SCalCommand> given)
{
    CLI::App *command = cal.add_subcommand(name, what);
    AddDutOptions(*command, given->dut);
    given->request.verb = verb;
    command->callback(
        [given, &exitCode] { RunCommand(exitCode, [given] { return Run(*given); }); });
    return command;
}

CLI::Option *AddItem(CLI::App &command, SCalRequest &request)
{
    return command.add_option("--item", request.item, "apt, or rx-path-loss")
        ->check(CLI::IsMember({"apt", "rx-path-loss"}));
}

void AddWriting(CLI::App &command, SCalRequest &request)
{
    command.add_flag("--yes", request.isYes, "write without a question");
    command.add_option("--backup", request.backupFolder,
                       "folder of the backup; XDG_DATA_HOME/quorlin-rf/backups unless told");
}

void AddRead(CLI::App &cal, int &exitCode)
{
    auto given = std::make_shared<SCalCommand>();
    CLI::App *command = Add(cal, "read", "flash into a file", ECalVerb::Read, exitCode, given);
    AddItem(*command, given->request)->required();
    command->add_option("--to", given->request.file, "FILE.ini for people, FILE.json as a backup")
        ->required();
}

void AddDiff(CLI::App &cal, int &exitCode)
{
    auto given = std::make_shared<SCalCommand>();
    CLI::App *command = Add(cal, "diff", "where two sides differ; each a FILE, or dut",
                            ECalVerb::Diff, exitCode, given);
    command->add_option("LEFT", given->request.file, "a file, or dut")->required();
    command->add_option("RIGHT", given->request.right, "a file, or dut")->required();
    AddItem(*command, given->request);
    command->add_option("--tolerance", given->request.tolerance,
                        "differences that count as none, such as 0.1dB");
    auto *json = command->add_flag("--json", given->request.isJson, "as JSON");
    command->add_flag("--csv", given->request.isCsv, "as CSV")->excludes(json);
}

void AddWrite(CLI::App &cal, int &exitCode)
{
    auto given = std::make_shared<SCalCommand>();
    CLI::App *command = Add(cal, "write", "a file into flash: shown, asked, kept, sent, read back",
                            ECalVerb::Write, exitCode, given);
    AddItem(*command, given->request)->required();
    command->add_option("--from", given->request.file, "an INI file, or a backup")->required();
    command->add_option("--only", given->request.only, "routes to write: 7,12 or T2:101")
        ->delimiter(',')
        ->allow_extra_args(false);
    command->add_flag("--dry-run", given->request.isDryRun, "show the differences, write nothing");
    command->add_flag("--allow-other-route", given->request.mayTakeOtherRoutes,
                      "take sections whose Route or Comp Route names another route");
    AddWriting(*command, given->request);
}

void AddVerify(CLI::App &cal, int &exitCode)
{
    auto given = std::make_shared<SCalCommand>();
    CLI::App *command =
        Add(cal, "verify", "does flash hold what a file has?", ECalVerb::Verify, exitCode, given);
    AddItem(*command, given->request)->required();
    command->add_option("--from", given->request.file, "an INI file, or a backup")->required();
}

void AddRestore(CLI::App &cal, int &exitCode)
{
    auto given = std::make_shared<SCalCommand>();
    CLI::App *command = Add(cal, "restore", "a backup into flash, as write does", ECalVerb::Restore,
                            exitCode, given);
    command->add_option("BACKUP", given->request.file, "the JSON file of a backup")->required();
    AddWriting(*command, given->request);
}

}  // namespace

void AddCalCommand(CLI::App &app, int &exitCode)
{
    CLI::App *cal = app.add_subcommand(
        "cal", "Calibration data in flash: read, compared, written with a backup and a read-back");
    cal->require_subcommand(1);
    AddRead(*cal, exitCode);
    AddDiff(*cal, exitCode);
    AddWrite(*cal, exitCode);
    AddVerify(*cal, exitCode);
    AddRestore(*cal, exitCode);
}
