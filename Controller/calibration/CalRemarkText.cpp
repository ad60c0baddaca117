#include "Controller/calibration/CalRemarkText.h"

#include "Operations/calibration/CalBlockImage.h"

namespace {

QString LeftOutName(const SCalLeftOut &record)
{
    return QString::fromStdString(CalRecordName(record.kind, record.place));
}

QString ReasonText(const SCalLeftOut &record)
{
    switch (record.why) {
    case ECalLeftOut::NotListed:
        return QStringLiteral("the block information of the target does not have it");
    case ECalLeftOut::TotalAlone:
        return QStringLiteral("the block information of the target has %1 blocks in all for its "
                              "%2 regions, which does not tell how many each has")
            .arg(record.count)
            .arg(record.place.regions);
    case ECalLeftOut::TooManyBlocks:
        return QStringLiteral("it has %1 blocks in flash, more than the %2 that can be read")
            .arg(record.count)
            .arg(record.most);
    case ECalLeftOut::AnswerCut:
        return QStringLiteral("the answer of the target has %1 of its %2 blocks")
            .arg(record.count)
            .arg(record.most);
    case ECalLeftOut::NeverFilled:
        return QStringLiteral("it was edited, but no Read or Import has filled it");
    }
    return {};
}

SCalRemarks LeftOut(const SCalMoveRemarks &remarks)
{
    const bool isPassedOver = remarks.leftOut.front().why == ECalLeftOut::NeverFilled;
    SCalRemarks told{isPassedOver ? eRemarkPassedOver : eRemarkLeftOut,
                     static_cast<int>(remarks.leftOut.size())};
    for (const SCalLeftOut &record : remarks.leftOut)
        told.rows.append({LeftOutName(record), ReasonText(record)});
    return told;
}

QString ValueText(const SCalOddValue &value)
{
    const QString page = !value.isOnPage      ? QStringLiteral("not on the page")
                         : value.page.empty() ? QStringLiteral("nothing")
                                              : QString::fromStdString(value.page);
    return QStringLiteral("\"%1\" in the file, %2 in memory, %3 on the page")
        .arg(QString::fromStdString(value.text), QString::fromStdString(value.memory), page);
}

SCalRemarks FileRemarks(const SCalMoveRemarks &remarks)
{
    SCalRemarks told{eRemarkOddValue, remarks.oddValueCount};
    for (const SCalOtherRoute &other : remarks.otherRoutes)
        told.otherRoutes.append(
            {QStringLiteral("[%1]").arg(QString::fromStdString(other.section)),
             QStringLiteral("loaded into %1, its %2 is %3")
                 .arg(QString::fromStdString(CalRecordName(other.kind, other.place)),
                      QString::fromStdString(other.key), QString::fromStdString(other.text))});
    for (const SCalOddValue &value : remarks.oddValues)
        told.rows.append({QStringLiteral("[%1] %2").arg(QString::fromStdString(value.section),
                                                        QString::fromStdString(value.key)),
                          ValueText(value)});
    return told;
}

}  // namespace

// A move has one kind of remark: a transfer reads no texts, and a load leaves out no record of its
// file.
SCalRemarks CalRemarksOf(const SCalMoveRemarks &remarks)
{
    if (!remarks.leftOut.empty())
        return LeftOut(remarks);
    return FileRemarks(remarks);
}
