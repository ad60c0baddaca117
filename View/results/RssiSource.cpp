// The sources of the RSSI page (ResultSource.h).
#include <QJsonArray>

#include "Model/JsonPath.h"
#include "View/results/ResultHeader.h"
#include "View/results/ResultSource.h"

namespace {

struct SRssiPath
{
    const char *table = nullptr;  // group of its channels
    const char *gainMode = nullptr;
    const char *prefix = nullptr;  // of its gains
};
constexpr SRssiPath kRssiPaths[] = {
    {.table = "group2", .gainMode = "gainModeP0", .prefix = "path0"},
    {.table = "group3", .gainMode = "gainModeP1", .prefix = "path1"},
};

constexpr const char *kChannelMembers[] = {"dlFrequency", "rssiMain", "rssiDiv"};
// Inputs of the measurement, though they stand in the response: the gain search writes them.
constexpr const char *kGainMembers[] = {"MainRfGain",    "DivRfGain",   "MainDigtalGain",
                                        "DivDigtalGain", "MainGainIdx", "DivGainIdx"};
const QLatin1String kAdvisedPower("adviseDlPower");

QJsonValue RssiValue(const QJsonObject &document, const QString &path)
{
    return GetJsonValueConst(document, QStringLiteral("cmdIf.response.") + path);
}

QString RssiCaption(const QJsonObject &document, const QString &group, const QString &member)
{
    return RssiValue(document, group + QStringLiteral(".memberProperty.") + member +
                                   QStringLiteral(".caption"))
        .toString();
}

QJsonValue RssiAnswer(const QJsonObject &document, const QString &group, const QString &member)
{
    return RssiValue(document, group + QStringLiteral(".memberProperty.") + member +
                                   QStringLiteral(".trait.defaultValue"));
}

QStringList GainNames()
{
    QStringList names;
    for (const SRssiPath &path : kRssiPaths) {
        for (const char *gain : kGainMembers)
            names.append(QLatin1String(path.prefix) + QLatin1String(gain));
    }
    return names << kAdvisedPower;
}

// Of a channel, the same for each.
QStringList GainsOf(const QJsonObject &document, const QString &group, const SRssiPath &path)
{
    const QJsonObject held = RssiValue(document, group + QStringLiteral(".memberValue")).toObject();
    QStringList texts{RssiAnswer(document, group, QLatin1String(path.gainMode)).toString()};
    for (const char *gain : kGainMembers)
        texts.append(held.value(QLatin1String(path.prefix) + QLatin1String(gain)).toString());
    return texts;
}

bool WasMeasured(const QString &frequency)
{
    return !frequency.isEmpty() && frequency != QLatin1String("0");
}

}  // namespace

QStringList GainHeaders(const QJsonObject &document, const QString &group)
{
    QStringList headers;
    for (const QString &name : GainNames())
        headers.append(ResultHeader(name, RssiCaption(document, group, name)));
    return headers;
}

QVector<QStringList> GainRows(const QJsonObject &document, const QString &group, int)
{
    QStringList texts;
    for (const QString &name : GainNames())
        texts.append(RssiAnswer(document, group, name).toString());
    return {texts};
}

QStringList RssiHeaders(const QJsonObject &document, const QString &group)
{
    QStringList headers{QStringLiteral("Path"), QStringLiteral("Channel")};
    const SRssiPath &path = kRssiPaths[0];
    for (const char *name : kChannelMembers) {
        const QString member = QLatin1String(name);
        headers.append(
            ResultHeader(member, RssiCaption(document, QLatin1String(path.table), member)));
    }
    headers.append(RssiCaption(document, group, QLatin1String(path.gainMode)));
    for (const char *gain : kGainMembers) {
        const QString member = QLatin1String(path.prefix) + QLatin1String(gain);
        QString caption = RssiCaption(document, group, member);
        headers.append(ResultHeader(member, caption.remove(QStringLiteral("Path0 "))));
    }
    return headers;
}

QVector<QStringList> RssiRows(const QJsonObject &document, const QString &group, int)
{
    QVector<QStringList> rows;
    for (const SRssiPath &path : kRssiPaths) {
        QVector<QJsonArray> columns;
        for (const char *name : kChannelMembers)
            columns.append(
                RssiAnswer(document, QLatin1String(path.table), QLatin1String(name)).toArray());
        const QStringList gains = GainsOf(document, group, path);
        for (int channel = 0; channel < columns.first().size(); ++channel) {
            if (!WasMeasured(columns.first().at(channel).toString()))
                continue;
            QStringList row{QLatin1String(path.prefix).right(1), QString::number(channel)};
            for (const QJsonArray &column : qAsConst(columns))
                row.append(column.at(channel).toString());
            rows.append(row + gains);
        }
    }
    return rows;
}
