// Calibration data of the fullest DUT on its ways: into a file and out of it, beside one save and
// one load of the same content by the INI library and the same bytes by fwrite; from the flash and
// into it, beside a copy of the same bytes.
//
// Files lie in memory (/dev/shm) where the system has that, so that the numbers are the tool's; the
// exports "on disk" lie in the folder of temporary files and wait for the disk as they do in use.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <unistd.h>

#include <SimpleIni.h>

#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Operations/calibration/MultiRatPathLossV7.h"
#include "Operations/capability/TargetCapability.h"
#include "Simulator/VondSim.h"
#include "Support/CalIniFile.h"
#include "Support/WideText.h"
#include "Vond/VondCore.h"
#include "bench/BenchMain.h"
#include "tests/common/CalProfile.h"
#include "tests/common/SimJournal.h"

namespace {

constexpr uint32_t kHandle = 1;
constexpr uint32_t kTimeoutMs = 5000;

using Apt = CMultiRatAptProfileV7;
using PathLoss = CMultiRatPathLossV7;

// The instantiation that the tool works with, and the leanest that the library offers: no
// conversion, and the bytes of the file in place.
using WideIni = CSimpleIniTempl<wchar_t, SI_NoCase<wchar_t>, CWideTextConverter>;
using ByteIni = CSimpleIniTempl<char, SI_NoCase<char>, SI_ConvertA<char>>;

enum class EMedium
{
    Memory,
    Disk,
};

QString Folder(EMedium medium)
{
    static const QTemporaryDir memory(
        (QFileInfo("/dev/shm").isWritable() ? QString("/dev/shm") : QDir::tempPath()) +
        "/calibration-bench-XXXXXX");
    static const QTemporaryDir disk(QDir::tempPath() + "/calibration-bench-XXXXXX");
    return (medium == EMedium::Memory ? memory : disk).path();
}

QString Path(const char *name, EMedium medium = EMedium::Memory)
{
    return Folder(medium) + '/' + name;
}

// An item with the DUT's flash in it, and its file.
template <typename Item>
struct SImage
{
    Item item{ERadioKind::Nr};
    QString file = Path(std::is_same_v<Item, Apt> ? "apt.ini" : "loss.ini");
    QByteArray bytes;

    SImage()
    {
        CCalIniFile ini(file.toStdWString().c_str());
        if (item.UploadFromFlash() != 0 || item.SaveToFile(&ini) != 0)
            qFatal("no image: %s", qPrintable(item.GetErrorMessage()));
        QFile saved(file);
        saved.open(QIODevice::ReadOnly);
        bytes = saved.readAll();
    }
};

template <typename Item>
SImage<Item> &Image()
{
    static SImage<Item> image;
    return image;
}

template <typename Item>
void LabelSize(benchmark::State &state)
{
    state.SetLabel(std::to_string(Image<Item>().bytes.size() / 1000) + " kB");
}

// A loop whose every turn begins without the file of that name, the removal not counted.
template <typename Turn>
void EachIntoNewFile(benchmark::State &state, const QString &path, Turn turn)
{
    for (auto _ : state) {
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
        if (!turn())
            state.SkipWithError("not written");
    }
}

template <typename Item, EMedium medium = EMedium::Memory>
void Export(benchmark::State &state)
{
    const QString path = Path("export.ini", medium);
    EachIntoNewFile(state, path, [&] {
        CCalIniFile file(path.toStdWString().c_str());
        return Image<Item>().item.SaveToFile(&file) == 0;
    });
    LabelSize<Item>(state);
}

// Over the file of an earlier export, whose other content has to stay.
template <typename Item>
void ExportOver(benchmark::State &state)
{
    const std::wstring path = Image<Item>().file.toStdWString();
    for (auto _ : state) {
        CCalIniFile file(path.c_str());
        if (Image<Item>().item.SaveToFile(&file) != 0)
            state.SkipWithError("not written");
    }
    LabelSize<Item>(state);
}

template <typename Item>
void Import(benchmark::State &state)
{
    const std::wstring path = Image<Item>().file.toStdWString();
    Item item(ERadioKind::Nr);
    for (auto _ : state) {
        CCalIniFile file(path.c_str());
        if (item.LoadFromFile(&file) != 0)
            state.SkipWithError("not loaded");
    }
    LabelSize<Item>(state);
}

// The library alone: what it holds goes to a file, with all of the content there already.
template <typename Ini, typename Item>
void SaveIni(benchmark::State &state)
{
    Ini ini(true, true, false);
    ini.LoadFile(qPrintable(Image<Item>().file));
    const QString path = Path("floor.ini");
    EachIntoNewFile(state, path, [&] { return ini.SaveFile(qPrintable(path), true) >= 0; });
}

template <typename Ini, typename Item>
void LoadIni(benchmark::State &state)
{
    const QByteArray path = Image<Item>().file.toUtf8();
    for (auto _ : state) {
        Ini ini(true, true, false);
        if (ini.LoadFile(path.constData()) < 0)
            state.SkipWithError("not loaded");
    }
}

template <typename Item>
void Fwrite(benchmark::State &state)
{
    const QByteArray &bytes = Image<Item>().bytes;
    const QByteArray path = Path("floor.txt").toUtf8();
    EachIntoNewFile(state, path, [&] {
        std::FILE *file = std::fopen(path.constData(), "wb");
        const size_t size = static_cast<size_t>(bytes.size());
        const bool good = std::fwrite(bytes.constData(), 1, size, file) == size;
        return std::fclose(file) == 0 && good;
    });
}

// The same bytes so that a crash can't harm the old file: written beside it, on the disk, renamed.
template <typename Item>
void FwriteSafely(benchmark::State &state)
{
    const QByteArray &bytes = Image<Item>().bytes;
    const QByteArray beside = Path("floor.tmp", EMedium::Disk).toUtf8();
    const QByteArray path = Path("floor.txt", EMedium::Disk).toUtf8();
    EachIntoNewFile(state, path, [&] {
        std::FILE *file = std::fopen(beside.constData(), "wb");
        const size_t size = static_cast<size_t>(bytes.size());
        bool good = std::fwrite(bytes.constData(), 1, size, file) == size;
        good = std::fflush(file) == 0 && fsync(fileno(file)) == 0 && good;
        good = std::fclose(file) == 0 && good;
        return good && std::rename(beside.constData(), path.constData()) == 0;
    });
}

// The journal's memory is not the transfer's.
void ForgetCalls(benchmark::State &state)
{
    state.PauseTiming();
    VondSim_ClearJournal();
    state.ResumeTiming();
}

// The requests of the journal's calls of a function.
template <typename Request>
std::vector<Request> RequestsOf(const char *function)
{
    std::vector<Request> requests;
    for (const SJournalCall &call : JournalOf(function))
        std::memcpy(&requests.emplace_back(), call.request.constData(), sizeof(Request));
    return requests;
}

// Bytes of all blocks that a download sends.
template <typename Item>
size_t BlockBytes()
{
    VondSim_ClearJournal();
    Image<Item>().item.DownloadToFlash();
    size_t bytes = 0;
    for (const auto &round : RequestsOf<SMMSetCalDataReqV7>("VOND_MMRf_SetCalDataV7_r")) {
        for (int i = 0; i < round.type1Count; ++i)
            bytes += round.type1[i].blockCount * sizeof(SMMType1PathlossBlockV7);
        for (int i = 0; i < round.type2Count; ++i)
            bytes += round.type2BlockCount[i] * sizeof(SMMType2PathlossBlockV7);
        for (int i = 0; i < round.txCount; ++i)
            bytes += round.tx[i].blockCount * sizeof(SAptBlock);
    }
    VondSim_ClearJournal();
    return bytes;
}

template <typename Item>
void Upload(benchmark::State &state)
{
    Item item(ERadioKind::Nr);
    for (auto _ : state) {
        if (item.UploadFromFlash() != 0)
            state.SkipWithError("not read");
        ForgetCalls(state);
    }
}

template <typename Item>
void Download(benchmark::State &state)
{
    Item &item = Image<Item>().item;
    for (auto _ : state) {
        if (item.DownloadToFlash() != 0)
            state.SkipWithError("not written");
        ForgetCalls(state);
    }
}

// The calls of a transfer alone, as the item made them: the DUT's part of it.
template <typename Item>
void UploadCalls(benchmark::State &state)
{
    VondSim_ClearJournal();
    Item(ERadioKind::Nr).UploadFromFlash();
    const auto requests = RequestsOf<SMMGetCalDataReqV7>("VOND_MMRf_GetCalDataV7_r");
    const auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    for (auto _ : state) {
        for (const SMMGetCalDataReqV7 &request : requests)
            VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, &request, answer.get());
        ForgetCalls(state);
    }
    state.SetLabel(std::to_string(requests.size()) + " rounds");
}

template <typename Item>
void DownloadCalls(benchmark::State &state)
{
    VondSim_ClearJournal();
    Image<Item>().item.DownloadToFlash();
    const auto requests = RequestsOf<SMMSetCalDataReqV7>("VOND_MMRf_SetCalDataV7_r");
    SMMSetCalDataCnfV7 answer;
    for (auto _ : state) {
        for (const SMMSetCalDataReqV7 &request : requests)
            VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &request, &answer);
        ForgetCalls(state);
    }
    state.SetLabel(std::to_string(requests.size()) + " rounds");
}

// As many bytes as the blocks of the item have in flash.
template <typename Item>
void Copy(benchmark::State &state)
{
    const std::vector<char> from(BlockBytes<Item>(), 'x');
    std::vector<char> to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
    state.SetLabel(std::to_string(from.size() / 1000) + " kB");
}

// Of both items alike: "Export/Apt", "Export/PathLoss".
#define CAL_BENCH(Item, name, ...)                                                                 \
    BENCHMARK_TEMPLATE(__VA_ARGS__)->Name(name "/" #Item)->Unit(benchmark::kMicrosecond)
#define CAL_BENCHES(Item)                                                                          \
    CAL_BENCH(Item, "Export", Export, Item);                                                       \
    CAL_BENCH(Item, "ExportOver", ExportOver, Item);                                               \
    CAL_BENCH(Item, "Import", Import, Item);                                                       \
    CAL_BENCH(Item, "ExportOnDisk", Export, Item, EMedium::Disk);                                  \
    CAL_BENCH(Item, "SaveIni", SaveIni, WideIni, Item);                                            \
    CAL_BENCH(Item, "SaveByteIni", SaveIni, ByteIni, Item);                                        \
    CAL_BENCH(Item, "LoadIni", LoadIni, WideIni, Item);                                            \
    CAL_BENCH(Item, "LoadByteIni", LoadIni, ByteIni, Item);                                        \
    CAL_BENCH(Item, "Fwrite", Fwrite, Item);                                                       \
    CAL_BENCH(Item, "FwriteSafely", FwriteSafely, Item);                                           \
    CAL_BENCH(Item, "Upload", Upload, Item);                                                       \
    CAL_BENCH(Item, "UploadCalls", UploadCalls, Item);                                             \
    CAL_BENCH(Item, "Download", Download, Item);                                                   \
    CAL_BENCH(Item, "DownloadCalls", DownloadCalls, Item);                                         \
    CAL_BENCH(Item, "Copy", Copy, Item)
CAL_BENCHES(Apt);
CAL_BENCHES(PathLoss);

#define CAL_RATIOS(Item)                                                                           \
    {"Export/" #Item, "SaveIni/" #Item, 2}, {"Export/" #Item, "SaveByteIni/" #Item, 2},            \
        {"Export/" #Item, "Fwrite/" #Item, 10}, {"ExportOver/" #Item, "SaveByteIni/" #Item, 0},    \
        {"ExportOnDisk/" #Item, "FwriteSafely/" #Item, 0},                                         \
        {"Import/" #Item, "LoadIni/" #Item, 1.6}, {"Import/" #Item, "LoadByteIni/" #Item, 2},      \
        {"Upload/" #Item, "Copy/" #Item, 0}, {"Upload/" #Item, "UploadCalls/" #Item, 0},           \
        {"Download/" #Item, "Copy/" #Item, 0},                                                     \
    {                                                                                              \
        "Download/" #Item, "DownloadCalls/" #Item, 0                                               \
    }
constexpr SRatio kRatios[] = {CAL_RATIOS(Apt), CAL_RATIOS(PathLoss)};

}  // namespace

int main(int argc, char **argv)
{
    SetUpBench();
    VondSim_SetProfileText(kLargestCalProfile);
    CTargetCapability::Reset();
    return RunBenchmarks(argc, argv, kRatios, std::size(kRatios));
}
