#include "View/results/ResultTable.h"

#include <QDateTime>

QString ResultTime(qint64 timeMs)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(timeMs);
    QString text = local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
    // Qt writes Z for no offset; a column of times has one form.
    return text.replace(QLatin1Char('Z'), QStringLiteral("+00:00"));
}
