// The sending of a guarded write, and what it came to.
#include "Controller/guard/GuardedWrite.h"

#include <algorithm>

#include "Controller/guard/GuardChecks.h"
#include "Controller/guard/GuardText.h"
#include "Operations/calibration/CalBlockDifferences.h"

namespace {

// Sorts the records by what stands in flash now.
void SortByReadBack(const SCalBlockImage &wanted, const SCalBlockImage &before,
                    const SCalBlockImage &after, const std::vector<ECalSent> &sent,
                    SGuardedOutcome &outcome)
{
    for (std::size_t i = 0; i < wanted.records.size(); ++i) {
        const SCalBlockRecord &record = wanted.records[i];
        const SCalBlockRecord *old = before.Find(record.kind, record.place);
        const SCalBlockRecord *now = after.Find(record.kind, record.place);
        if (!now)  // the read-back has left it out
            (sent[i] == ECalSent::NotSent ? outcome.notWritten : outcome.unknown)
                .append(RecordText(record));
        else if (now->blocks == record.blocks)
            outcome.written.append(RecordText(record));
        else if (old && now->blocks == old->blocks)
            outcome.notWritten.append(RecordText(record));
        else
            outcome.different.append(RecordText(record));
    }
}

// Without a read-back the answers are all there is.
void SortByAnswers(const SCalBlockImage &wanted, const std::vector<ECalSent> &sent,
                   SGuardedOutcome &outcome)
{
    for (std::size_t i = 0; i < wanted.records.size(); ++i) {
        QStringList &list = sent[i] == ECalSent::NotSent    ? outcome.notWritten
                            : sent[i] == ECalSent::Accepted ? outcome.written
                                                            : outcome.unknown;
        list.append(RecordText(wanted.records[i]));
    }
}

EGuardedEnd EndOf(const SGuardedOutcome &outcome)
{
    const bool isAllBefore =
        outcome.written.isEmpty() && outcome.different.isEmpty() && outcome.unknown.isEmpty();
    if (isAllBefore)
        return EGuardedEnd::NotWritten;
    if (!outcome.isReadBack || !outcome.unknown.isEmpty())
        return EGuardedEnd::Unknown;
    const bool isAllWritten = outcome.different.isEmpty() && outcome.notWritten.isEmpty();
    return isAllWritten ? EGuardedEnd::Verified : EGuardedEnd::Different;
}

// Of each record that is not as wanted the fields that differ; where none shows it, the bytes.
QStringList DifferenceLines(const SCalBlockImage &wanted, const SCalBlockImage &after)
{
    QStringList lines;
    for (const SCalBlockRecord &record : wanted.records) {
        const SCalBlockRecord *now = after.Find(record.kind, record.place);
        if (!now || now->blocks == record.blocks)
            continue;
        const CCalComparison fields(JoinedImage({{record}}), JoinedImage({{*now}}));
        const QString name = RecordText(record);
        for (std::size_t i = 0; i < fields.Count(); ++i) {
            const SCalDifference one = fields.At(i);
            if (one.lack == ECalLack::None)
                lines.append(QStringLiteral("%1 %2: %3 wanted, %4 in flash")
                                 .arg(name, QString::fromStdString(one.field),
                                      QString::fromStdString(one.left),
                                      QString::fromStdString(one.right)));
            else
                lines.append(QStringLiteral("%1: %2 in flash")
                                 .arg(name, one.lack == ECalLack::Left ? QStringLiteral("still")
                                                                       : QStringLiteral("not")));
        }
        if (fields.Count() == 0) {
            for (const std::string &line : CalBlockDifferences(record, now))
                lines.append(name + QLatin1Char(' ') + QString::fromStdString(line));
        }
    }
    return lines;
}

}  // namespace

// Records that were not sent, and are not as they were all the same, count as wanted as they were.
SCalBlockImage CGuardedWrite::WantedWithBystanders(const SCalBlockImage &after) const
{
    SCalBlockImage all = m_wanted;
    for (const SCalBlockRecord &record : m_flash.records) {
        const SCalBlockRecord *now = after.Find(record.kind, record.place);
        if (!m_wanted.Find(record.kind, record.place) && now && now->blocks != record.blocks)
            all.records.push_back(record);
    }
    return all;
}

SGuardedOutcome CGuardedWrite::Carry()
{
    SGuardedOutcome outcome;
    if (m_wanted.records.empty()) {
        outcome.end = EGuardedEnd::Same;
        outcome.text = OutcomeText(outcome, {}, {});
        return outcome;
    }
    std::vector<ECalSent> sent;
    Follow(EGuardStep::Send);
    const uint32_t code = m_item.scratch->DownloadBlocks(m_wanted, sent);
    if (code != kCalSuccess)
        outcome.trouble = MoveText(code, m_item.scratch->GetErrorMessage());

    SCalBlockImage after;
    QStringList differences;
    const QString unread = ReadFlash(EGuardStep::ReadBack, after);
    outcome.isReadBack = unread.isEmpty();
    if (outcome.isReadBack) {
        const SCalBlockImage all = WantedWithBystanders(after);
        sent.resize(all.records.size(), ECalSent::NotSent);
        SortByReadBack(all, m_flash, after, sent, outcome);
        outcome.rest = std::make_shared<CCalComparison>(JoinedImage(all),
                                                        JoinedImage(SameRecords(after, all)));
        differences = DifferenceLines(all, after);
    } else {
        SortByAnswers(m_wanted, sent, outcome);
        const QString trouble = QStringLiteral("the read-back failed: %1").arg(unread);
        outcome.trouble += (outcome.trouble.isEmpty() ? QString() : QStringLiteral("; ")) + trouble;
    }
    outcome.end = EndOf(outcome);
    outcome.text = OutcomeText(outcome, differences, m_backupFile);
    return outcome;
}
