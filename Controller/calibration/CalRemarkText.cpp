#include "Controller/calibration/CalRemarkText.h"

namespace {

// "T2 route 101", "TX route 7 BW0": as the pages' selectors name them.
QString RecordText(const SCalLeftOut &record)
{
    QString text = QStringLiteral("%1 route %2")
                       .arg(QLatin1String(RouteName(record.kind)))
                       .arg(record.place.route);
    if (HasRegions(record.kind))
        text += QStringLiteral(" BW%1").arg(record.place.region);
    return text;
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
        told.rows.append({RecordText(record), ReasonText(record)});
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

SCalRemarks OddValues(const SCalMoveRemarks &remarks)
{
    SCalRemarks told{eRemarkOddValue, remarks.oddValueCount};
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
    return OddValues(remarks);
}
