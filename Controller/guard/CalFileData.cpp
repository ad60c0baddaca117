#include "Controller/guard/CalFileData.h"

#include <exception>

#include <QFile>
#include <QFileInfo>

#include "Controller/guard/CalBackup.h"
#include "Controller/guard/GuardText.h"
#include "Operations/calibration/CalItemByL1Operation.h"
#include "Support/CalIniFile.h"

namespace {

QString ReadBackupFile(const QString &file, const QString &key, ICalItemByL1Operation &scratch,
                       SCalFileData &data)
{
    SCalBackup backup;
    if (const QString why = ReadCalBackup(file, backup); !why.isEmpty())
        return why;
    if (backup.item != key)
        return QStringLiteral("%1 is a backup of \"%2\", not of \"%3\".")
            .arg(file, backup.item, key);
    if (backup.chip != scratch.ChipName())
        return QStringLiteral("%1 is of a DUT with the RF chip %2. This DUT has %3.")
            .arg(file, backup.chip, scratch.ChipName());
    const SMMRfRouteTableV7 *table = CTargetCapability().GetRouteTableNr();
    if (!table)
        return QString::fromLatin1(kNoRouteInfo) + QLatin1Char('.');
    const QString why = PlaceOnDut(backup, *table, data.image);
    return why.isEmpty() ? why : QStringLiteral("%1: %2").arg(file, why);
}

QString ReadIniFile(const QString &file, ICalItemByL1Operation &scratch,
                    const SCalBlockImage &under, SCalFileData &data)
{
    scratch.TakeImage(JoinedImage(under));
    try {
        CCalIniFile ini(file.toStdWString().c_str());
        if (const uint32_t code = scratch.LoadFromFile(&ini))
            return QStringLiteral("%1: %2").arg(file, MoveText(code, scratch.GetErrorMessage()));
    } catch (const std::exception &failure) {
        return QString::fromUtf8(failure.what()) + QLatin1Char('.');
    }
    data.remarks = scratch.Remarks();
    SCalBlockImage loaded;
    for (const SCalLoaded &record : data.remarks.loaded) {
        if (!loaded.Find(record.kind, record.place))
            loaded.records.push_back({record.kind, record.place, {}});
    }
    for (SCalImageRecord &record : scratch.Image().records) {
        if (!loaded.Find(record.kind, record.place))
            continue;
        const SCalBlockRecord *before = under.Find(record.kind, record.place);
        CountFileBlocks(record, before);
        data.image.records.push_back({record.kind, record.place, BlocksOver(record, before)});
    }
    return {};
}

}  // namespace

bool IsCalBackup(const QString &file)
{
    QFile source(file);
    if (file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive))
        return true;
    return QFileInfo(file).isFile() && source.open(QIODevice::ReadOnly) &&
           source.read(256).trimmed().startsWith('{');
}

QString ReadCalFile(const QString &file, const QString &key, ICalItemByL1Operation &scratch,
                    const SCalBlockImage &under, SCalFileData &data)
{
    data = {};
    data.isBackup = IsCalBackup(file);
    if (data.isBackup)
        return ReadBackupFile(file, key, scratch, data);
    const QFileInfo info(file);
    if (!info.isFile() || !info.isReadable())
        return QStringLiteral("%1 cannot be read: %2.")
            .arg(file, !info.exists()  ? QStringLiteral("there is no such file")
                       : info.isFile() ? QStringLiteral("it is not allowed")
                                       : QStringLiteral("it is no file"));
    if (info.size() > kLongestCalIni)
        return QStringLiteral("%1 is no file of calibration data: it has %2 MB, and such a file at "
                              "most %3.")
            .arg(file)
            .arg(info.size() >> 20)
            .arg(kLongestCalIni >> 20);
    return ReadIniFile(file, scratch, under, data);
}
