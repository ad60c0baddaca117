// What a page reports: the members and columns that expectations name.
#include "Runner/bench/BenchPage.h"

#include <QTableWidget>

#include "Runner/bench/Names.h"
#include "Runner/bench/PageLayout.h"
#include "Runner/bench/PageReader.h"

namespace {

SBenchOutput ColumnOf(const SLayoutTable &table, const QString &key, int column)
{
    SBenchOutput output;
    output.isFound = true;
    output.isColumn = true;
    output.name = table.section + '.' + table.group + '.' + key;
    output.caption = HeaderTexts(table.widget, Qt::Horizontal).value(column);
    for (int row = 0; row < table.widget->rowCount(); ++row)
        output.values.append(ResultText(table.widget, row, column));
    return output;
}

SBenchOutput Refused(const SRefusal &refusal)
{
    SBenchOutput output;
    output.refusal = refusal;
    return output;
}

SBenchOutput ValueOf(const SBenchMember &member, int column)
{
    const int count = static_cast<int>(member.values.size());
    if (column >= 0 && (!member.isCells || column >= count))
        return Refused({QStringLiteral("%1 has no column %2.").arg(member.Name()).arg(column),
                        member.isCells ? QStringLiteral("[0] to [%1]").arg(count - 1) : QString()});
    SBenchOutput output;
    output.isFound = true;
    output.name = member.Name();
    output.caption = member.caption;
    output.unit = member.unit;
    output.values = column >= 0 ? QStringList{member.values[column]} : member.values;
    return output;
}

// Names of one section, or of any where the name has its section in front.
struct SCandidates
{
    QStringList names;
    QVector<SBenchMember> members;
};

SCandidates OutputsOf(const QVector<SBenchMember> &members, const QString &section)
{
    SCandidates candidates;
    for (const SBenchMember &member : members) {
        if (section.isEmpty() || member.section == section) {
            candidates.names.append(member.Name());
            candidates.members.append(member);
        }
    }
    return candidates;
}

}  // namespace

SBenchOutput CBenchPage::FindOutput(const QString &name) const
{
    if (!m_page)
        return Refused({QStringLiteral("The page has gone.")});
    // A caption may have brackets or points of its own.
    QStringList known;
    for (const SLayoutTable &table : Layout().Tables()) {
        const bool isHere = table.kind == EGroupKind::Results && table.widget;
        if (!isHere || !IsShownOn(m_page, table.widget))
            continue;
        const QStringList headers = HeaderTexts(table.widget, Qt::Horizontal);
        int column = 0;
        for (const SLayoutMember &member : Layout().Members()) {
            if (member.known.section != table.section || member.known.group != table.group)
                continue;
            const QString header = headers.value(column);
            const bool isIt =
                header == name.trimmed() || IsNameOf(name.trimmed(), member.known.Name());
            if (isIt) {
                SBenchOutput output = ColumnOf(table, member.known.key, column);
                output.unit = member.known.unit;
                return output;
            }
            known.append(header);
            ++column;
        }
    }
    const SParsedName parsed = ParseName(name);
    const QVector<SBenchMember> members = Members();
    // The response comes first; a calibration page has data instead. A whole name may be an input's.
    for (const char *section : {"response", "data", ""}) {
        const SCandidates candidates = OutputsOf(members, QLatin1String(section));
        const SNameMatch match = MatchName(parsed.name, candidates.names, QStringLiteral("result"));
        if (match.index >= 0)
            return ValueOf(candidates.members[match.index], parsed.column);
        if (match.isSeveral)
            return Refused(match.refusal);
        if (QLatin1String(section) != QLatin1String(""))
            known += candidates.names;
    }
    return Refused({QStringLiteral("There is no result \"%1\".").arg(name.trimmed()),
                    known.join(QStringLiteral(", "))});
}
