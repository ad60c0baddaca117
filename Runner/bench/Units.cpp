#include "Runner/bench/Units.h"

#include <QRegularExpression>

QString UnitOf(const QString &caption)
{
    static const QRegularExpression kUnit(QStringLiteral("\\(\\s*1?\\s*(dBm|dB|kHz|ms|%)\\s*\\)"));
    return kUnit.match(caption).captured(1);
}
