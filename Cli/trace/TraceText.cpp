#include "Cli/trace/TraceText.h"

#include <cstdio>

#include "Trace/lines/PrintableText.h"

namespace {

std::string FileText(const std::string &file, const std::string &buildId)
{
    return buildId.empty() ? file : file + " (" + buildId + ")";
}

}  // namespace

std::string HeaderText(const std::string &path, const STraceHeader &header)
{
    std::string text = path + ": of " + header.time + ", by Quorlin RF " + header.tool + ", with " +
                       FileText(header.core, header.coreBuildId);
    if (!header.app.empty())
        text += " and " + FileText(header.app, header.appBuildId);
    return PrintableText(text);
}

void WarnOfCutLine(const std::string &path, const STrace &trace)
{
    if (trace.isCut)
        std::fprintf(stderr, "quorlin: %s: the last line is cut, and is left out\n",
                     PrintableText(path).c_str());
}
