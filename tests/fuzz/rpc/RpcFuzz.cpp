// Any lines to the server behind JSON-RPC, with the tool open on a simulated DUT.
//
// Each input is what one client sends; the tool stays open and keeps what was set. Nothing may transmit, and
// what names a file is left out, and so is the end of the process. A wait ends after kLongestWait. The rules
// stand in RpcRules.h.
#include <memory>

#include <sys/mman.h>
#include <unistd.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchApplication.h"
#include "Runner/bench/CleanStdout.h"
#include "Runner/serve/RpcServer.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/rpc/RpcRules.h"

namespace {

constexpr int kMostLines = 16;
constexpr int kLongestWait = 50;  // ms of all waits of an input
constexpr std::chrono::seconds kIdle(30);

// All for the life of the process.
struct SServed
{
    QTemporaryDir folder;
    int output = -1;  // what the server has written, a file in memory
    std::unique_ptr<CCleanStdout> out;
    std::unique_ptr<QApplication> application;
    std::unique_ptr<CBench> bench;
};
SServed *s_served = nullptr;

// The server writes to what standard output is now; afterwards it is as it was.
void CatchOutput(SServed &served)
{
    const int own = dup(STDOUT_FILENO);
    served.output = memfd_create("rpc", MFD_CLOEXEC);
    Require(own >= 0 && served.output >= 0, "there are files");
    dup2(served.output, STDOUT_FILENO);
    served.out = std::make_unique<CCleanStdout>();
    dup2(own, STDOUT_FILENO);
    close(own);
}

QByteArray TakeOutput(int file)
{
    QByteArray bytes(static_cast<int>(lseek(file, 0, SEEK_END)), '\0');
    Require(pread(file, bytes.data(), static_cast<size_t>(bytes.size()), 0) == bytes.size(),
            "what was written can be read");
    Require(ftruncate(file, 0) == 0 && lseek(file, 0, SEEK_SET) == 0, "the file is empty again");
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    s_served = new SServed;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(name, s_served->folder.path().toLocal8Bit());
    CatchOutput(*s_served);
    s_served->application = MakeBenchApplication(false);
    s_served->bench = std::make_unique<CBench>();
    const SBenchError error = s_served->bench->Open({.profile = QStringLiteral("handset")});
    Require(error.kind == EBenchError::None, "the tool opens");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    CBench &bench = *s_served->bench;
    QByteArrayList lines;
    for (const QByteArray &line :
         QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)).split('\n')) {
        if (lines.size() < kMostLines && MaySend(line))
            lines.append(line);
    }
    CRpcServer server(bench, {}, *s_served->out);
    QTimer::singleShot(kLongestWait, &server, [&bench] { bench.Interrupt(); });
    for (const QByteArray &line : qAsConst(lines))
        server.TakeLine(line);
    QCoreApplication::processEvents();
    server.End();
    bench.Resume();
    Require(bench.WaitIdle(kIdle) == EBenchWait::Done, "the tool goes on");
    CheckReplies(lines, TakeOutput(s_served->output));
    return 0;
}
