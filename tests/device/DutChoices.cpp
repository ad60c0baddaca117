#include "tests/device/DutChoices.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include "Simulator/VondSim.h"

namespace {

QJsonObject Parse(const QByteArray &text, const char *what)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("%s: %s", what, qPrintable(error.errorString()));
    return object;
}

QByteArray FileText(const char *path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", path, qPrintable(file.errorString()));
    return file.readAll();
}

QString BandName(const QJsonObject &row)
{
    return QString("n%1").arg(row["band"].toInt());
}

QString RouteName(const QJsonObject &row)
{
    return QString::number(row["route"].toInt());
}

}  // namespace

CDutChoices::CDutChoices()
    : m_profile(Parse(VondSim_ProfileText(), "profile")),
      m_bandTables(Parse(FileText(BAND_TABLES), BAND_TABLES))
{
}

QStringList CDutChoices::Bands() const
{
    QStringList bands;
    for (const QJsonValue &row : m_profile["bands"].toArray()) {
        if (!row["uplinkOnly"].toBool())
            bands.append(BandName(row.toObject()));
    }
    return bands;
}

QStringList CDutChoices::RouteTypes(const QString &band) const
{
    QStringList types("Type1");
    if (!Routes(band, "Type2").isEmpty())
        types.append("Type2");
    return types;
}

QStringList CDutChoices::Routes(const QString &band, const QString &routeType) const
{
    QStringList routes;
    for (const QJsonValue &row : m_profile["rx" + routeType + "Routes"].toArray()) {
        if (BandName(row.toObject()) == band)
            routes.append(RouteName(row.toObject()));
    }
    return routes;
}

QStringList CDutChoices::Bandwidths(const QString &band) const
{
    return m_bandTables["BandWidthByBand"][band].toVariant().toStringList();
}

SLimits CDutChoices::Limits(const QString &route) const
{
    SLimits limits;
    for (const QString &band : Bands()) {
        if ((Routes(band, "Type1") + Routes(band, "Type2")).contains(route))
            limits = LimitsOn(band, route);
    }
    return limits;
}

SLimits CDutChoices::LimitsOn(const QString &band, const QString &route) const
{
    for (const QJsonValue &row : m_profile["rxLimits"].toArray()) {
        if (BandName(row.toObject()) == band && RouteName(row.toObject()) == route)
            return {row["kHz"][0].toInt(), row["kHz"][1].toInt()};
    }
    const QJsonValue downlink = m_bandTables["operatingBand"][band]["downlink"];
    return {downlink["low"].toInt(), downlink["high"].toInt()};
}
