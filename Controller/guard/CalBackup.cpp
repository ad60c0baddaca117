#include "Controller/guard/CalBackup.h"

#include <algorithm>
#include <map>
#include <set>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr ECalRoute kRouteKinds[] = {ECalRoute::Tx, ECalRoute::Type1, ECalRoute::Type2};

QJsonObject RouteObject(const SCalBackupRoute &route)
{
    QJsonObject object = {
        {"kind", RouteName(route.kind)}, {"band", route.band}, {"route", route.route}};
    if (!HasRegions(route.kind))
        return object;
    QJsonArray regions;
    for (const uint32_t khz : route.regionsKhz)
        regions.append(static_cast<qint64>(khz));
    object.insert("regions", regions);
    return object;
}

QJsonObject RecordObject(const SCalBlockRecord &record)
{
    QJsonObject object = {{"kind", RouteName(record.kind)}, {"route", record.place.route}};
    if (HasRegions(record.kind))
        object.insert("bandwidth", static_cast<qint64>(record.place.bwKhz));
    const auto *bytes = reinterpret_cast<const char *>(record.blocks.data());
    const int size = static_cast<int>(CalBlockSize(record.kind));
    QJsonArray blocks;
    for (int at = 0; at + size <= static_cast<int>(record.blocks.size()); at += size)
        blocks.append(QString::fromLatin1(QByteArray::fromRawData(bytes + at, size).toHex()));
    object.insert("blocks", blocks);
    return object;
}

using BandsOfRoute = std::map<std::pair<ECalRoute, uint16_t>, std::set<uint16_t>>;

BandsOfRoute BandsOf(const QVector<SCalBackupRoute> &routes)
{
    BandsOfRoute bands;
    for (const SCalBackupRoute &route : routes)
        bands[{route.kind, route.route}].insert(route.band);
    return bands;
}

QString BandText(const std::set<uint16_t> &bands)
{
    QStringList names;
    for (const uint16_t band : bands)
        names.append(QStringLiteral("n%1").arg(band));
    return names.join(QLatin1String(", "));
}

}  // namespace

QByteArray CalBackupText(const SCalBackup &backup)
{
    QJsonArray routes;
    for (const SCalBackupRoute &route : backup.routes)
        routes.append(RouteObject(route));
    QJsonArray records;
    for (const SCalBlockRecord &record : backup.image.records)
        records.append(RecordObject(record));
    QJsonArray unread;
    for (const SCalUnread &one : backup.unread)
        unread.append(QJsonObject{{"record", one.record}, {"why", one.why}});
    const QJsonObject object = {{"format", kCalBackupFormat},
                                {"version", kCalBackupVersion},
                                {"item", backup.item},
                                {"chip", backup.chip},
                                {"handle", static_cast<qint64>(backup.handle)},
                                {"time", backup.time},
                                {"routes", routes},
                                {"records", records},
                                {"unread", unread}};
    return QJsonDocument(object).toJson();
}

QVector<SCalBackupRoute> BackupRoutesOf(const SMMRfRouteTableV7 &table)
{
    QVector<SCalBackupRoute> routes;
    for (const ECalRoute kind : kRouteKinds) {
        int row = -1;
        for (const SCalPlace &place : WalkRoutes(table, kind)) {
            if (place.row != row)
                routes.append({.kind = kind, .band = place.band, .route = place.route});
            row = place.row;
            if (HasRegions(kind))
                routes.last().regionsKhz.append(place.bwKhz);
        }
    }
    return routes;
}

QString PlaceOnDut(const SCalBackup &backup, const SMMRfRouteTableV7 &table, SCalBlockImage &image)
{
    const BandsOfRoute theirs = BandsOf(backup.routes);
    const BandsOfRoute ours = BandsOf(BackupRoutesOf(table));
    image = backup.image;
    for (SCalBlockRecord &record : image.records) {
        const QString name = QString::fromStdString(CalRecordName(record.kind, record.place));
        const auto own = ours.find({record.kind, record.place.route});
        if (own == ours.end())
            return QStringLiteral("The DUT has no %1, of which the backup has a record.").arg(name);
        const std::set<uint16_t> &bands = theirs.at({record.kind, record.place.route});
        if (own->second != bands)
            return QStringLiteral("The DUT has %1 on %2, the backup on %3: it is of a DUT with "
                                  "another route table.")
                .arg(name, BandText(own->second), BandText(bands));
        const std::vector<SCalPlace> places = WalkRoutes(table, record.kind);
        const auto place =
            std::find_if(places.begin(), places.end(), [&record](const SCalPlace &one) {
                return one.route == record.place.route && one.bwKhz == record.place.bwKhz;
            });
        if (place == places.end())
            return QStringLiteral("The DUT has no region up to %1 kHz on TX route %2, of which the "
                                  "backup has a record.")
                .arg(record.place.bwKhz)
                .arg(record.place.route);
        record.place = *place;
    }
    return {};
}
