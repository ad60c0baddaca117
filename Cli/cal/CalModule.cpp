// The door of the module.
#include <cstring>
#include <exception>

#include "Cli/ExitCodes.h"
#include "Cli/cal/CalRuns.h"
#include "Cli/cal/CalTerminal.h"

namespace {

int RunVerb(const SCalRequest &request)
{
    switch (request.verb) {
    case ECalVerb::Read:
        return RunCalRead(request);
    case ECalVerb::Diff:
        return RunCalDiff(request);
    case ECalVerb::Write:
        return RunCalWrite(request);
    case ECalVerb::Verify:
        return RunCalVerify(request);
    default:
        return RunCalRestore(request);
    }
}

// What a writer has done counts more than whether somebody could read about it.
bool IsWriter(ECalVerb verb)
{
    return verb == ECalVerb::Write || verb == ECalVerb::Restore;
}

bool IsOutputGood()
{
    if (const int error = OutputError())
        Complain(QStringLiteral("standard output: %1")
                     .arg(QString::fromLocal8Bit(std::strerror(error))));
    return OutputError() == 0;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int QuorlinCalRun(const SCalRequest &request)
{
    try {
        const int exitCode = RunVerb(request);
        return IsWriter(request.verb) || IsOutputGood() ? exitCode : kExitTrouble;
    } catch (const std::exception &failure) {
        Complain(QString::fromUtf8(failure.what()));
    }
    return kExitTrouble;
}
