#include "Support/FileFilter.h"

#include <QRegularExpression>

namespace {

const QString kParted = QStringLiteral(";;");  // between Qt's own filters

// The name without the patterns in brackets that it may end in: Qt looks for its own there.
QString BareName(QString name)
{
    static const QRegularExpression brackets(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    return name.remove(brackets).trimmed();
}

QString Patterns(const QString &text)
{
    QStringList patterns;
    for (const QString &pattern : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString one = pattern.trimmed();
        patterns.append(one == QLatin1String("*.*") ? QStringLiteral("*") : one);
    }
    return patterns.join(QLatin1Char(' '));
}

}  // namespace

QStringList NameFilters(const QString &filter)
{
    if (!filter.contains(QLatin1Char('|')))
        return filter.split(kParted, Qt::SkipEmptyParts);
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (int i = 0; i + 1 < parts.size(); i += 2)
        filters.append(BareName(parts[i]) + QLatin1String(" (") + Patterns(parts[i + 1]) +
                       QLatin1Char(')'));
    return filters;
}

QString DefaultSuffix(const QString &filter)
{
    static const QRegularExpression firstEnd(QStringLiteral("\\(\\*\\.(\\w+)[ )]"));
    return firstEnd.match(NameFilters(filter).value(0)).captured(1);
}
