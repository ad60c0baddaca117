#include "View/results/ResultHeader.h"

#include <QRegularExpression>

#include "View/engine/MemberUnit.h"

namespace {

// The document has none of it.
const QLatin1String kPdValue("pdValue");
const QLatin1String kPdCaption("PD value");

}  // namespace

QString ResultHeader(const QString &member, const QString &caption)
{
    const QString own = caption.isEmpty() && member == kPdValue ? QString(kPdCaption) : caption;
    const QString unit = UnitOfMember(member);
    if (unit.isEmpty())
        return own.isEmpty() ? member : own;
    static const QRegularExpression kBrackets(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    QString words = own;
    words.remove(kBrackets);
    return (words.isEmpty() ? member : words) + QStringLiteral(" (%1)").arg(unit);
}

QStringList DistinctHeaders(const QStringList &headers)
{
    QStringList distinct;
    for (const QString &header : headers) {
        QString name = header;
        for (int number = 2; distinct.contains(name); ++number)
            name = header + QStringLiteral(" #%1").arg(number);
        distinct.append(name);
    }
    return distinct;
}
