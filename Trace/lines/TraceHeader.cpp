#include "Trace/lines/TraceHeader.h"

#include <utility>

#include "Trace/lines/LoadedLibrary.h"

STraceHeader HeaderOfThePair(std::string tool)
{
    const SLoadedLibrary core = FindLoadedLibrary("libVondCore.so");
    const SLoadedLibrary app = FindLoadedLibrary("libVondApp.so");
    return {.tool = std::move(tool),
            .core = core.name,
            .coreBuildId = core.buildId,
            .app = app.name,
            .appBuildId = app.buildId};
}
