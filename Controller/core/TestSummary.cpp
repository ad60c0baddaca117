#include "Controller/core/TestSummary.h"

#include <QStringList>

#include "Model/JsonPath.h"

namespace {

constexpr double kKhzPerMhz = 1000.0;

// The packaged text; empty when there is none.
QString TextOf(const QJsonObject &document, const char *member)
{
    if (!member)
        return {};
    const QStringList parts = QString::fromLatin1(member).split(QLatin1Char('.'));
    return GetJsonValueConst(
               document,
               QStringLiteral("cmdIf.request.%1.memberValue.%2").arg(parts.first(), parts.last()))
        .toVariant()
        .toString();
}

// Empty when the text is no number.
QString NumberText(const QString &text, double scale, int decimals, const char *unit)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? QString::number(value / scale, 'f', decimals) + QLatin1String(unit)
                    : QString();
}

}  // namespace

SRunningTestInfo SummaryOf(const char *pageName, const STestSummary &summary,
                           const QJsonObject &document)
{
    SRunningTestInfo info;
    info.transmits =
        summary.transmits || TextOf(document, summary.transmitsBy).contains(QLatin1String("TX"));
    QStringList parts = {QString::fromLatin1(pageName), TextOf(document, summary.band),
                         NumberText(TextOf(document, summary.frequency), kKhzPerMhz, 3, " MHz")};
    if (info.transmits)
        parts.append(NumberText(TextOf(document, summary.power), 1, 2, " dBm"));
    parts.removeAll(QString());
    info.text = parts.join(QLatin1String("  "));
    info.startedMs = RunningClockMs();
    return info;
}
