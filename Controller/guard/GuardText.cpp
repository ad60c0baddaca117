#include "Controller/guard/GuardText.h"

#include "Controller/guard/GuardChecks.h"
#include "Model/StatusTable.h"

namespace {

constexpr int kShownDifferences = 20;

QString Heading(const SGuardedOutcome &outcome)
{
    switch (outcome.end) {
    case EGuardedEnd::Same:
        return QStringLiteral("Flash is as wanted already. Nothing was written.");
    case EGuardedEnd::Verified:
        return QStringLiteral("Written and verified: flash was read back, and is byte for byte as "
                              "wanted.");
    case EGuardedEnd::Different:
        return QStringLiteral("Written, but flash is not as wanted, as its read-back shows.");
    case EGuardedEnd::NotWritten:
        return outcome.isReadBack
                   ? QStringLiteral("Nothing was written: flash is as it was, as its read-back "
                                    "shows.")
                   : QStringLiteral("Nothing was written: no record went to the DUT.");
    default:
        return QStringLiteral("Not verified: flash could not be read back.");
    }
}

QString HowToGoOn(const SGuardedOutcome &outcome, const QString &backup)
{
    if (outcome.end == EGuardedEnd::Same || outcome.end == EGuardedEnd::Verified)
        return {};
    QString text = QStringLiteral("How to go on: write once more, which sends what differs then.");
    if (outcome.end != EGuardedEnd::NotWritten && !backup.isEmpty())
        text += QStringLiteral(" Or bring back what was there before: quorlin cal restore '%1'")
                    .arg(backup);
    return text;
}

}  // namespace

QString MoveText(uint32_t code, const QString &text)
{
    const SStatusRow row = LookupStatus(static_cast<int>(code));
    const QString own = text.trimmed().isEmpty() ? row.advice.trimmed() : text.trimmed();
    QString words = row.text.trimmed();
    if (own.isEmpty())
        return words;
    while (words.endsWith(QLatin1Char('.')))
        words.chop(1);
    return words + QLatin1String(": ") + own;
}

QString OutcomeText(const SGuardedOutcome &outcome, const QStringList &differences,
                    const QString &backup)
{
    QStringList lines = {Heading(outcome)};
    const auto add = [&lines](const char *heading, const QStringList &records) {
        if (!records.isEmpty())
            lines.append(QLatin1String(heading) + FirstOf(records) + QLatin1Char('.'));
    };
    if (!outcome.trouble.isEmpty())
        lines.append(QStringLiteral("The DUT reported: %1").arg(outcome.trouble));
    add(outcome.isReadBack ? "Written, as wanted: " : "Accepted by the DUT: ", outcome.written);
    add("Changed, but not as wanted: ", outcome.different);
    add("Not written, as before: ", outcome.notWritten);
    add("Unknown, whether written: ", outcome.unknown);
    lines += differences.mid(0, kShownDifferences);
    if (differences.size() > kShownDifferences)
        lines.append(
            QStringLiteral("... and %1 more values").arg(differences.size() - kShownDifferences));
    const QString further = HowToGoOn(outcome, backup);
    if (!further.isEmpty())
        lines.append(further);
    return lines.join(QLatin1Char('\n'));
}
