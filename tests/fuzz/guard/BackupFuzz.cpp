// Any bytes as a backup: it is read, or there is one line that tells why not; never both, never neither. What
// was read makes the same file, and every record of it has a route and whole blocks.
#include <memory>

#include <QFile>
#include <QTemporaryDir>

#include "Controller/guard/CalBackup.h"
#include "Controller/guard/CalFileData.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

std::unique_ptr<QTemporaryDir> s_folder;

void Put(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "the folder of the target can be written to");
}

void CheckWhy(const QString &why, const QString &file)
{
    Require(why.startsWith(file) && why.endsWith(QLatin1Char('.')), "a refusal is a sentence");
    Require(why.size() < 1000 + file.size(), "a refusal is short");
    for (const QChar letter : why)
        Require(letter.unicode() >= ' ' && letter.unicode() != 0x7f, "a refusal is one line");
}

void CheckRecord(const SCalBlockRecord &record, const SCalBackup &backup)
{
    const std::size_t size = CalBlockSize(record.kind);
    Require(record.blocks.size() % size == 0, "blocks are whole");
    Require(record.blocks.size() / size <= static_cast<std::size_t>(CalBlocksOfRound(record.kind)),
            "a record fits into a round");
    bool isListed = false;
    for (const SCalBackupRoute &route : backup.routes)
        isListed = isListed || (route.kind == record.kind && route.route == record.place.route);
    Require(isListed, "a record has a route");
    Require(!CalRecordName(record.kind, record.place).empty(), "a record has a name");
}

// A table with the backup's own routes, as far as there is room.
std::unique_ptr<SMMRfRouteTableV7> TableOf(const SCalBackup &backup)
{
    auto table = std::make_unique<SMMRfRouteTableV7>();
    for (const SCalBackupRoute &route : backup.routes) {
        if (route.kind == ECalRoute::Tx && table->txRouteCount < kVondMaxTxRoutes) {
            SMMRfTxRouteV7 &row = table->txRoute[table->txRouteCount++];
            row.band = route.band;
            row.route = route.route;
            for (const uint32_t khz : route.regionsKhz) {
                if (row.bwRegionCount < kVondMaxBwRegions)
                    row.bwRegionKhz[row.bwRegionCount++] = khz;
            }
        } else if (route.kind == ECalRoute::Type1 && table->rxType1RouteCount < kVondMaxRxRoutes) {
            auto &row = table->rxType1Route[table->rxType1RouteCount++];
            row.band = route.band;
            row.route = route.route;
        } else if (route.kind == ECalRoute::Type2 && table->rxType2RouteCount < kVondMaxRxRoutes) {
            auto &row = table->rxType2Route[table->rxType2RouteCount++];
            row.band = route.band;
            row.route = route.route;
        }
    }
    return table;
}

void CheckBackup(const SCalBackup &backup, const QString &file)
{
    for (const SCalBlockRecord &record : backup.image.records)
        CheckRecord(record, backup);
    const QByteArray text = CalBackupText(backup);
    Put(file, text);
    SCalBackup again;
    Require(ReadCalBackup(file, again).isEmpty(), "what was read can be written and read");
    Require(CalBackupText(again) == text, "a backup that was read makes the same file");
    JoinedImage(backup.image);
    SCalBlockImage placed;
    const QString why = PlaceOnDut(backup, *TableOf(backup), placed);
    Require(!why.isEmpty() || placed.records.size() == backup.image.records.size(),
            "a backup is placed whole");
    Require(backup.image.records.empty() ||
                !PlaceOnDut(backup, *std::make_unique<SMMRfRouteTableV7>(), placed).isEmpty(),
            "a DUT without routes takes no record");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    s_folder = std::make_unique<QTemporaryDir>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString file = s_folder->filePath(QStringLiteral("backup.json"));
    Put(file, QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    IsCalBackup(file);
    SCalBackup backup;
    const QString why = ReadCalBackup(file, backup);
    if (why.isEmpty())
        CheckBackup(backup, file);
    else
        CheckWhy(why, file);
    return 0;
}
