// Fuzz target of the calibration files: any bytes for a file, loaded by both items.
//
// The rules are those of LoadRules.h. The target has few routes, of each kind the first of a band,
// a further one, and one that stands on two bands, and few gain modes, so that a short file can
// hold them all. With QUORLIN_FUZZ_EXPORT naming a folder, a start writes the exports of both items
// into it, to make inputs of.
#include <QCoreApplication>

#include "Operations/capability/TargetCapability.h"
#include "Operations/link/TargetLink.h"
#include "Simulator/VondSim.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/ini/LoadRules.h"

namespace {

constexpr uint32_t kHandle = 1;

constexpr char kProfile[] = R"({"name": "few routes", "base": "handset",
    "txRoutes": [
        {"band": 1, "route": 1, "regions": [
            {"kHz": 20000, "antMask": 1, "feRoute": 1, "port": "TX_0", "stx": 0},
            {"kHz": 50000, "antMask": 1, "feRoute": 2, "port": "TX_0", "stx": 0}]},
        {"band": 1, "route": 2, "regions": [
            {"kHz": 20000, "antMask": 1, "feRoute": 3, "port": "TX_0", "stx": 0}]},
        {"band": 3, "route": 2, "regions": [
            {"kHz": 20000, "antMask": 1, "feRoute": 3, "port": "TX_0", "stx": 0}]}],
    "rxType1Routes": [
        {"band": 1, "route": 1, "antMask": 3, "feRoute": 4, "ports": ["RX_0M", "RX_0D"], "srx": 0},
        {"band": 1, "route": 2, "antMask": 3, "feRoute": 5, "ports": ["RX_0M", "RX_0D"], "srx": 1},
        {"band": 3, "route": 2, "antMask": 3, "feRoute": 5, "ports": ["RX_0M", "RX_0D"], "srx": 1}],
    "rxType2Routes": [
        {"band": 1, "route": 101, "gainMode": 1, "antMask": 3, "feRoute": 6,
         "ports": ["RX_0M", "RX_0D"], "srx": [2, 3]},
        {"band": 3, "route": 102, "gainMode": 1, "antMask": 3, "feRoute": 7,
         "ports": ["RX_0M", "RX_0D"], "srx": [4, 5]}],
    "txLimits": [], "rxLimits": [],
    "calibration": {"txSubbands": {"default": 3}, "rxType1Subbands": {"default": 3},
                    "rxType2Subbands": {"default": 3}},
    "gain": {
        "hpm": {"t1": ["010", "000", "001", "000", "000", "000", "000"],
                "t2": ["000 010 000", "000 000 000", "000 000 001", "000 000 000", "000 000 000",
                       "000 000 000", "000 000 000"]},
        "lpm": {"t1": ["100", "000", "000", "000", "000", "000", "000"],
                "t2": ["100 000 000", "000 000 000", "000 000 000", "000 000 000", "000 000 000",
                       "000 000 000", "010 000 000"]}}})";

struct STarget
{
    CIniTestFolder folder;
    CLoadRules<CMultiRatAptProfileV7> apt{folder, {0, 51, 53, 200}};
    CLoadRules<CMultiRatPathLossV7> pathLoss{folder, {0, 51, 52, 53, 200}};
};

std::unique_ptr<STarget> s_target;

void ExportTo(const QString &folder)
{
    s_target->apt.Export(QStringLiteral("apt.ini"));
    s_target->pathLoss.Export(QStringLiteral("path-loss.ini"));
    for (const char *name : {"apt.ini", "path-loss.ini"}) {
        const QString path = QString::fromStdString(s_target->folder.Path(QLatin1String(name)));
        QFile::copy(path, folder + QLatin1Char('/') + QLatin1String(name));
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    VondSim_Reset();
    Require(VondSim_SetProfileText(kProfile) == 0, "the target's profile is good");
    SetTargetHandle(kHandle);
    CTargetCapability::Reset();
    s_target = std::make_unique<STarget>();
    const QString folder = qEnvironmentVariable("QUORLIN_FUZZ_EXPORT");
    if (!folder.isEmpty())
        ExportTo(folder);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    s_target->folder.Put(bytes);
    s_target->apt.Check(QStringLiteral("cal.ini"));
    s_target->folder.Put(bytes);
    s_target->pathLoss.Check(QStringLiteral("cal.ini"));
    VondSim_ClearJournal();
    return 0;
}
