#include "Controller/capability/FrequencyRange.h"

#include <QString>

QJsonObject FrequencyRange(int low, int high, bool withRangeCheck)
{
    if (!withRangeCheck)
        return {{"min", low}, {"max", high}};
    return {
        {"min", 0}, {"max", high}, {"rangeCheck", QStringLiteral("0,%1~%2").arg(low).arg(high)}};
}
