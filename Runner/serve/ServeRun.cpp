#include "Runner/serve/ServeRun.h"

#include <cstdio>

#include <unistd.h>

#include "Runner/bench/BenchApplication.h"
#include "Runner/bench/CleanStdout.h"
#include "Runner/bench/EndSignals.h"
#include "Runner/describe/DescribeRun.h"
#include "Runner/serve/LineReader.h"
#include "Runner/serve/RpcServer.h"

namespace {

constexpr int kRfMayBeOn = 4;
constexpr int kBySignal = 128;

int Complain(const QString &text, int exitCode)
{
    std::fprintf(stderr, "quorlin: %s\n", qUtf8Printable(text));
    return exitCode;
}

}  // namespace

int RunServe(const SServeOptions &options)
{
    CCleanStdout out;
    const auto application = MakeBenchApplication(options.isVerbose);
    CEndSignals endSignals;
    CBench bench;
    QObject::connect(&endSignals, &CEndSignals::Signal_Came, &bench, &CBench::Interrupt);
    const SBenchError error = bench.Open(options.bench);
    if (endSignals.Number() != 0)
        return kBySignal + endSignals.Number();
    if (error.kind != EBenchError::None)
        return Complain(error.text, ExitCodeOf(error.kind));
    CRpcServer server(bench, options.limits, out);
    CLineReader reader(STDIN_FILENO);
    QObject::connect(&endSignals, &CEndSignals::Signal_Came, &server, &CRpcServer::End);
    QObject::connect(&reader, &CLineReader::Signal_Line, &server, &CRpcServer::TakeLine);
    QObject::connect(&reader, &CLineReader::Signal_TooLong, &server, &CRpcServer::TakeTooLong);
    QObject::connect(&reader, &CLineReader::Signal_End, &server, &CRpcServer::End);
    server.Run();
    const bool isOff = bench.Close();
    if (!isOff)
        Complain(QStringLiteral("RF Off has failed: RF MAY BE ON."), kRfMayBeOn);
    if (endSignals.Number() != 0)
        return kBySignal + endSignals.Number();
    return isOff ? 0 : kRfMayBeOn;
}
