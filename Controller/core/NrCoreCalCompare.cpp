// Comparisons of calibration data: the DUT's flash, the page's memory and files, side by side.
#include "Controller/core/NrCore.h"

#include <algorithm>
#include <exception>
#include <set>
#include <tuple>
#include <utility>

#include "Controller/calibration/CalDifferences.h"
#include "Controller/core/CalSecondImage.h"
#include "Controller/guard/CalBackup.h"
#include "Model/StatusTable.h"
#include "Operations/calibration/CalResult.h"
#include "Support/CalIniFile.h"
#include "Support/Log.h"

namespace {

bool IsIni(const SComparedSide &side)
{
    return side.kind == ECalSide::File &&
           !side.file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

}  // namespace

std::unique_ptr<ICalItemByL1Operation> CNrCore::ScratchItem(ECalItem item, const QString &work)
{
    std::unique_ptr<ICalItemByL1Operation> scratch = FindCalItem(item).make();
    scratch->SetProgress(
        [this, work, name = CalItemName(item)](int, int routesDone, int routesInAll) {
            emit Signal_CalWork(name, work, routesDone, routesInAll);
            m_targetLock.GiveWay();
        });
    return scratch;
}

SCalImage CNrCore::MemoryImage(ECalItem item)
{
    const CLockSentry lock(CalItem(item).lock);
    return CalItem(item).operation->Image();
}

SCalFault CNrCore::ReadFlash(ECalItem item, SCalImage &image)
{
    const auto scratch = ScratchItem(item, QStringLiteral("Read data from target"));
    const uint32_t code = scratch->UploadFromFlash();
    const bool isEmpty = code == kCalNotRun;
    if (code != kCalSuccess && !isEmpty)
        return {code, scratch->GetErrorMessage()};
    image = scratch->Image();
    return {};
}

SCalFault CNrCore::LoadBackup(ECalItem item, const QString &path, SCalImage &image)
{
    SCalBackup backup;
    const QString why = ReadCalBackup(path, backup);
    if (!why.isEmpty())
        return {kCalNoFile, why};
    if (backup.item != QLatin1String(FindCalItem(item).key))
        return {kCalNoData, QStringLiteral("%1 is a backup of %2.").arg(path, backup.item)};
    image = JoinedImage(backup.image);
    return {};
}

// What the file has no key for is as on the other side. A record that the file has no section for is
// not in the image.
SCalFault CNrCore::LoadIni(ECalItem item, const QString &path, const SCalImage &other,
                           SCalImage &image)
{
    CCalIniFile file(path.toStdWString().c_str());
    const auto alone = ScratchItem(item, QStringLiteral("Read data from file"));
    if (const uint32_t code = alone->LoadFromFile(&file))
        return {code, alone->GetErrorMessage()};
    std::set<std::tuple<ECalRoute, uint16_t, int>> inFile;
    for (const SCalImageRecord &record : alone->Image().records)
        inFile.emplace(record.kind, record.place.route, record.place.region);
    const auto onto = FindCalItem(item).make();
    onto->TakeImage(other);
    if (const uint32_t code = onto->LoadFromFile(&file))
        return {code, onto->GetErrorMessage()};
    image = onto->Image();
    image.records.erase(
        std::remove_if(
            image.records.begin(), image.records.end(),
            [&](const SCalImageRecord &record) {
                return inFile.count({record.kind, record.place.route, record.place.region}) == 0;
            }),
        image.records.end());
    return {};
}

SCalFault CNrCore::TakeSide(ECalItem item, const SComparedSide &side, const SCalImage &other,
                            SCalImage &image)
{
    switch (side.kind) {
    case ECalSide::Dut:
        return ReadFlash(item, image);
    case ECalSide::Memory:
        image = MemoryImage(item);
        return {};
    case ECalSide::File:
        break;
    }
    return IsIni(side) ? LoadIni(item, side.file, other, image)
                       : LoadBackup(item, side.file, image);
}

SCalCompared CNrCore::CompareCal(ECalItem item, const SComparedSide &left,
                                 const SComparedSide &right)
{
    const CLockSentry lock(m_targetLock);
    SCalCompared compared{.result = {CalItemName(item), eStatusSuccess, {}}};
    const auto fail = [&](uint32_t code, const QString &text) {
        compared.result.status = static_cast<int>(code);
        compared.result.message = text;
    };
    try {
        RenewCalItems();
        SCalImage images[2];
        const SComparedSide *const sides[2] = {&left, &right};
        const int first = IsIni(left) && !IsIni(right) ? 1 : 0;  // an INI file comes behind
        for (const int side : {first, 1 - first}) {
            const SCalFault fault = TakeSide(item, *sides[side], images[1 - side], images[side]);
            if (fault) {
                fail(fault.code, fault.text);
                return compared;
            }
        }
        compared.differences =
            MakeCalDifferences(CCalComparison(std::move(images[0]), std::move(images[1])));
    } catch (const std::exception &failure) {
        fail(kCalNoFile, QString::fromUtf8(failure.what()));
    }
    return compared;
}

SCalSecondRead CNrCore::ReadSecondImage(ECalItem item, const SComparedSide &side)
{
    const CLockSentry lock(m_targetLock);
    SCalSecondRead read{.result = {CalItemName(item), eStatusSuccess, {}}};
    const auto fail = [&](uint32_t code, const QString &text) {
        read.result.status = static_cast<int>(code);
        read.result.message = text;
    };
    try {
        RenewCalItems();
        SCalImage image;
        const SCalFault fault =
            TakeSide(item, side, IsIni(side) ? MemoryImage(item) : SCalImage(), image);
        if (fault)
            fail(fault.code, fault.text);
        else
            read.image = std::make_shared<CCalSecondImage>(item, image, CalView(item).gains);
    } catch (const std::exception &failure) {
        fail(kCalNoFile, QString::fromUtf8(failure.what()));
    }
    return read;
}
