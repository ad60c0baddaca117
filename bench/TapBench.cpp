// What the tap costs a call: passing it through, and writing it down. The pair behind it does next to
// nothing. Times of small calls are those of a thousand; a calibration round, with a record of 178 kB, stands
// beside a copy of its bytes, their hexadecimal digits and one write of these.
//
// Traces lie in memory (/dev/shm) where the system has that, so that the numbers are the tap's.
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "Vond/VondCore.h"
#include "bench/BenchMain.h"

namespace {

constexpr int kCalls = 1000;
constexpr int kTurnsOfAFile = 64;  // of a calibration round, before the file is emptied

using ContRx = decltype(&VOND_MMRf_ContRxV7_r);
using SetCalData = decltype(&VOND_MMRf_SetCalDataV7_r);

void *Loaded(const QString &file)
{
    void *const library = dlopen(qPrintable(file), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        qFatal("%s", dlerror());
    return library;
}

template <typename Function>
Function In(void *library, const char *name)
{
    return reinterpret_cast<Function>(dlsym(library, name));
}

const QString &Folder()
{
    static const QTemporaryDir folder(
        (QFileInfo("/dev/shm").isWritable() ? "/dev/shm" : QDir::tempPath()) +
        QString("/tap-bench-XXXXXX"));
    static const QString path = folder.path();
    return path;
}

QByteArray TracePath()
{
    return (Folder() + "/run.jsonl").toUtf8();
}

void *Pair()
{
    static void *const pair = Loaded(TAP_BENCH_PAIR);
    return pair;
}

// A tap reads the environment once, so each mode has its own.
void *Tap(const char *mode)
{
    const QString copy = Folder() + "/lib" + mode + ".so";
    QFile::copy(TAP_BENCH_TAP, copy);
    qputenv("VOND_TAP", QByteArray(mode) == "pass" ? "" : mode);
    qputenv("VOND_TAP_FILE", TracePath());
    Pair();
    void *const tap = Loaded(copy);
    In<decltype(&VOND_NRf_TestStop_r)>(tap, "VOND_NRf_TestStop_r")(0, 1);
    return tap;
}

void *PassingTap()
{
    static void *const tap = Tap("pass");
    return tap;
}

void *RecordingTap()
{
    static void *const tap = Tap("record");
    return tap;
}

void CallContRx(benchmark::State &state, void *library)
{
    const auto call = In<ContRx>(library, "VOND_MMRf_ContRxV7_r");
    const SMMContRxCmdV7 command = {};
    for (auto _ : state) {
        for (int i = 0; i < kCalls; ++i)
            benchmark::DoNotOptimize(call(0, 10, &command));
    }
    state.SetItemsProcessed(state.iterations() * kCalls);
}

void Direct(benchmark::State &state)
{
    CallContRx(state, Pair());
}

void Passed(benchmark::State &state)
{
    CallContRx(state, PassingTap());
}

void Recorded(benchmark::State &state)
{
    void *const tap = RecordingTap();
    truncate(TracePath().constData(), 0);
    CallContRx(state, tap);
}

// What is written grows, and is emptied now and then while nobody counts.
template <typename Turn>
void EachIntoFile(benchmark::State &state, const QByteArray &path, const Turn &turn)
{
    int turns = 0;
    for (auto _ : state) {
        if (++turns % kTurnsOfAFile == 0) {
            state.PauseTiming();
            truncate(path.constData(), 0);
            state.ResumeTiming();
        }
        turn();
    }
}

std::vector<uint8_t> Bytes(std::size_t size)
{
    std::vector<uint8_t> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<uint8_t>(i * 31);
    return bytes;
}

void RecordedRound(benchmark::State &state)
{
    const auto call = In<SetCalData>(RecordingTap(), "VOND_MMRf_SetCalDataV7_r");
    const std::vector<uint8_t> bytes = Bytes(sizeof(SMMSetCalDataReqV7));
    SMMSetCalDataCnfV7 answer = {};
    EachIntoFile(state, TracePath(), [&] {
        call(0, 10, reinterpret_cast<const SMMSetCalDataReqV7 *>(bytes.data()), &answer);
    });
}

void CopyHexWrite(benchmark::State &state)
{
    static constexpr char kDigits[] = "0123456789abcdef";
    const QByteArray path = (Folder() + "/floor.jsonl").toUtf8();
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const std::vector<uint8_t> bytes =
        Bytes(sizeof(SMMSetCalDataReqV7) + sizeof(SMMSetCalDataCnfV7));
    std::vector<uint8_t> copy(bytes.size());
    std::vector<char> text(2 * bytes.size());
    std::vector<std::array<char, 2>> pairs(256);
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {kDigits[i >> 4], kDigits[i & 15]};
    EachIntoFile(state, path, [&] {
        std::memcpy(copy.data(), bytes.data(), bytes.size());
        benchmark::ClobberMemory();
        for (std::size_t i = 0; i < copy.size(); ++i)
            std::memcpy(text.data() + 2 * i, pairs[copy[i]].data(), 2);
        if (write(file, text.data(), text.size()) < 0)
            state.SkipWithError("not written");
    });
    close(file);
}

// Of a thousand calls, in ms: 0.1 is 100 ns a call.
constexpr SRatio kRatios[] = {
    {.measured = "Passed", .floor = nullptr, .aim = 0.1},
    {.measured = "Recorded", .floor = nullptr, .aim = 10},
    {.measured = "RecordedRound", .floor = "CopyHexWrite", .aim = 1.5},
};

}  // namespace

BENCHMARK(Direct)->Unit(benchmark::kMicrosecond);
BENCHMARK(Passed)->Unit(benchmark::kMicrosecond);
BENCHMARK(Recorded)->Unit(benchmark::kMicrosecond);
BENCHMARK(RecordedRound)->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyHexWrite)->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    SetUpBench();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
