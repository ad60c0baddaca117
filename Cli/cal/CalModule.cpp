// The door of the module.
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

}  // namespace

extern "C" __attribute__((visibility("default"))) int QuorlinCal_Run(const SCalRequest &request)
{
    try {
        return RunVerb(request);
    } catch (const std::exception &failure) {
        Complain(QString::fromUtf8(failure.what()));
    }
    return kExitTrouble;
}
