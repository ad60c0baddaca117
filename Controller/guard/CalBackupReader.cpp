// The reading of a backup: every value is looked at.
#include "Controller/guard/CalBackup.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <tuple>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Support/WholeFile.h"

namespace {

// Of a value that is not as it has to be. Does not leave this file.
std::runtime_error Wrong(const QString &where, const QString &why)
{
    return std::runtime_error((where + QLatin1String(": ") + why).toStdString());
}

// An object of the file and where it is, for the words.
struct SNode
{
    QJsonObject object;
    QString where;

    QJsonValue At(const char *key) const
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            throw Wrong(where, QStringLiteral("\"%1\" is missing").arg(QLatin1String(key)));
        return value;
    }
    QString Text(const char *key) const
    {
        if (!At(key).isString())
            throw Wrong(where, QStringLiteral("\"%1\" is no text").arg(QLatin1String(key)));
        return At(key).toString();
    }
    QJsonArray List(const char *key) const
    {
        if (!At(key).isArray())
            throw Wrong(where, QStringLiteral("\"%1\" is no list").arg(QLatin1String(key)));
        return At(key).toArray();
    }
    uint32_t Number(const char *key, uint32_t most) const { return NumberOf(At(key), key, most); }
    uint32_t NumberOf(const QJsonValue &value, const char *key, uint32_t most) const
    {
        const double number = value.toDouble(-1);
        if (number < 0 || number > most || number != static_cast<uint32_t>(number))
            throw Wrong(where, QStringLiteral("\"%1\" is no whole number from 0 to %2")
                                   .arg(QLatin1String(key))
                                   .arg(most));
        return static_cast<uint32_t>(number);
    }
    ECalRoute Kind() const
    {
        const QString name = Text("kind");
        for (const ECalRoute kind : {ECalRoute::Tx, ECalRoute::Type1, ECalRoute::Type2}) {
            if (name == QLatin1String(RouteName(kind)))
                return kind;
        }
        throw Wrong(where, QStringLiteral("\"kind\" is none of TX, T1, T2"));
    }
    // The objects of a list.
    std::vector<SNode> Nodes(const char *key) const
    {
        std::vector<SNode> nodes;
        for (const QJsonValue &value : List(key)) {
            const QString place =
                QStringLiteral("%1[%2]").arg(QLatin1String(key)).arg(nodes.size());
            if (!value.isObject())
                throw Wrong(place, QStringLiteral("it is no object"));
            nodes.push_back({value.toObject(), place});
        }
        return nodes;
    }
};

SCalBackupRoute ReadRoute(const SNode &node)
{
    SCalBackupRoute route = {.kind = node.Kind(),
                             .band = static_cast<uint16_t>(node.Number("band", UINT16_MAX)),
                             .route = static_cast<uint16_t>(node.Number("route", UINT16_MAX))};
    if (HasRegions(route.kind)) {
        for (const QJsonValue &value : node.List("regions"))
            route.regionsKhz.append(node.NumberOf(value, "regions", UINT32_MAX));
    }
    return route;
}

SCalPlace ReadPlace(const SNode &node, ECalRoute kind, const QVector<SCalBackupRoute> &routes)
{
    SCalPlace place;
    place.route = static_cast<uint16_t>(node.Number("route", UINT16_MAX));
    const auto route = std::find_if(routes.begin(), routes.end(), [&](const SCalBackupRoute &one) {
        return one.kind == kind && one.route == place.route;
    });
    if (route == routes.end())
        throw Wrong(node.where, QStringLiteral("there is no %1 route %2 among its routes")
                                    .arg(QLatin1String(RouteName(kind)))
                                    .arg(place.route));
    place.band = route->band;
    if (!HasRegions(kind))
        return place;
    place.bwKhz = node.Number("bandwidth", UINT32_MAX);
    place.regions = route->regionsKhz.size();
    place.region = route->regionsKhz.indexOf(place.bwKhz);
    if (place.region < 0)
        throw Wrong(node.where, QStringLiteral("TX route %1 has no region up to %2 kHz")
                                    .arg(place.route)
                                    .arg(place.bwKhz));
    return place;
}

std::vector<uint8_t> ReadBlocks(const SNode &node, ECalRoute kind)
{
    const int size = static_cast<int>(CalBlockSize(kind));
    const QJsonArray blocks = node.List("blocks");
    if (blocks.size() > CalBlocksOfRound(kind))
        throw Wrong(node.where, QStringLiteral("it has %1 blocks, more than the %2 of a record")
                                    .arg(blocks.size())
                                    .arg(CalBlocksOfRound(kind)));
    std::vector<uint8_t> bytes;
    for (const QJsonValue &value : blocks) {
        const QByteArray hex = value.toString().toLatin1();
        const QByteArray block = QByteArray::fromHex(hex);
        if (block.size() != size || block.toHex() != hex.toLower())
            throw Wrong(node.where,
                        QStringLiteral("a block is not %1 hexadecimal digits").arg(2 * size));
        bytes.insert(bytes.end(), block.begin(), block.end());
    }
    return bytes;
}

void ReadRecords(const SNode &file, SCalBackup &backup)
{
    std::set<std::tuple<ECalRoute, uint16_t, int>> seen;
    for (const SNode &node : file.Nodes("records")) {
        const ECalRoute kind = node.Kind();
        const SCalPlace place = ReadPlace(node, kind, backup.routes);
        if (!seen.insert({kind, place.route, place.region}).second)
            throw Wrong(node.where, QStringLiteral("%1 is there twice")
                                        .arg(QString::fromStdString(CalRecordName(kind, place))));
        backup.image.records.push_back({kind, place, ReadBlocks(node, kind)});
    }
}

SCalBackup ReadFile(const QByteArray &text)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        throw Wrong(QStringLiteral("byte %1 of %2").arg(error.offset).arg(text.size()),
                    error.errorString() + QLatin1String("; it may be cut or damaged"));
    const SNode file = {document.object(), QStringLiteral("the file")};
    if (file.object.value(QLatin1String("format")).toString() != QLatin1String(kCalBackupFormat))
        throw Wrong(file.where, QStringLiteral("it is no backup of calibration data"));
    if (file.Number("version", UINT32_MAX) != kCalBackupVersion)
        throw Wrong(file.where, QStringLiteral("its version is not %1").arg(kCalBackupVersion));
    SCalBackup backup;
    backup.item = file.Text("item");
    backup.chip = file.Text("chip");
    backup.handle = file.Number("handle", UINT32_MAX);
    backup.time = file.Text("time");
    for (const SNode &node : file.Nodes("routes"))
        backup.routes.append(ReadRoute(node));
    ReadRecords(file, backup);
    for (const SNode &node : file.Nodes("unread"))
        backup.unread.append({node.Text("record"), node.Text("why")});
    return backup;
}

}  // namespace

QString ReadCalBackup(const QString &file, SCalBackup &backup)
{
    const QFileInfo info(file);
    if (!info.exists())
        return QStringLiteral("%1 cannot be read: there is no such file.").arg(file);
    if (info.isFile() && info.size() > kLongestCalBackup)
        return QStringLiteral("%1 is no backup: it has %2 MB, and a backup at most %3.")
            .arg(file)
            .arg(info.size() >> 20)
            .arg(kLongestCalBackup >> 20);
    QByteArray text;
    if (const QString why = ReadWhole(file, kLongestCalBackup, text); !why.isEmpty())
        return QStringLiteral("%1 cannot be read: %2.").arg(file, why);
    try {
        backup = ReadFile(text);
    } catch (const std::exception &failure) {
        return QStringLiteral("%1 is no backup that can be used: %2.")
            .arg(file, QString::fromStdString(failure.what()));
    }
    return {};
}
