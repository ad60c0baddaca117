#include "Runner/describe/DescribeText.h"

#include <QVector>

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchPage.h"

namespace {

constexpr int kGap = 2;           // blanks between columns
constexpr int kLongestList = 60;  // characters of choices or values; the rest is told by number

QString Columns(const QVector<QStringList> &rows, const QString &indent)
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        for (int c = 0; c < row.size(); ++c) {
            if (c == widths.size())
                widths.append(0);
            widths[c] = qMax(widths[c], static_cast<int>(row[c].size()));
        }
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line = indent;
        for (int c = 0; c < row.size(); ++c)
            line += row[c].leftJustified(widths[c] + kGap);
        while (line.endsWith(' '))
            line.chop(1);
        text += line + '\n';
    }
    return text;
}

QString Short(const QStringList &texts)
{
    QString list;
    for (int i = 0; i < texts.size(); ++i) {
        const QString next = (i == 0 ? QString() : QStringLiteral(", ")) + texts[i];
        if (i > 0 && list.size() + next.size() > kLongestList)
            return list + QStringLiteral(", ... (%1 in all)").arg(texts.size());
        list += next;
    }
    return list;
}

QString Takes(const SBenchMember &member)
{
    if (!member.IsInput())
        return {};
    if (!member.choices.isEmpty())
        return Short(member.choices);
    if (!member.allowed.isEmpty())
        return member.allowed;
    return member.min.isEmpty() ? QString() : member.min + '~' + member.max;
}

QString State(bool isShown, bool isEnabled)
{
    if (!isShown)
        return QStringLiteral("hidden");
    return isEnabled ? QString() : QStringLiteral("off");
}

}  // namespace

QString DescribeToolText(const CBench &bench)
{
    QVector<QStringList> rows;
    for (const CBenchPage *page : bench.Pages())
        rows.append({page->Title(), page->ClassName()});
    return Columns(rows, {});
}

QString DescribePageText(const CBenchPage &page)
{
    QVector<QStringList> buttons;
    for (const SBenchButton &button : page.Buttons())
        buttons.append({button.text, button.name, State(button.isShown, button.isEnabled)});
    QVector<QStringList> members{{"name", "caption", "type", "value", "takes", "now"}};
    for (const SBenchMember &member : page.Members()) {
        const QString cells =
            member.isCells ? QStringLiteral("[0..%1]").arg(member.columns.size() - 1) : QString();
        const QString unit = member.unit.isEmpty() ? QString() : ' ' + member.unit;
        members.append({member.Name() + cells, member.caption, member.type,
                        Short(member.values) + unit, Takes(member),
                        State(member.isShown, member.isEnabled)});
    }
    QVector<QStringList> tables;
    for (const SBenchTable &table : page.Tables())
        tables.append(
            {table.Name(),
             QStringLiteral("%1 rows of %2").arg(table.rows.size()).arg(Short(table.columns)),
             State(table.isShown, true)});
    const QString indent = QStringLiteral("  ");
    QString text = page.Title() + QStringLiteral("  (") + page.ClassName() + QStringLiteral(")\n");
    text += QStringLiteral("Buttons\n") + Columns(buttons, indent);
    text += QStringLiteral("Members\n") + Columns(members, indent);
    if (!tables.isEmpty())
        text += QStringLiteral("Tables\n") + Columns(tables, indent);
    return text;
}
