// A backup of calibration data as JSON: what flash had, block for block, with the chip and the route
// table of its DUT. It is what a restore sends.
//
//   {"format": "quorlin-rf calibration", "version": 1, "item": "apt", "chip": "VR6211", "handle": 1,
//    "time": "2026-11-22T16:05:03Z",
//    "routes": [{"kind": "TX", "band": 78, "route": 7, "regions": [20000, 100000]}],
//    "records": [{"kind": "TX", "route": 7, "bandwidth": 100000, "blocks": ["4e00...", "4e00..."]}],
//    "unread": [{"record": "T2 route 101", "why": "..."}]}
//
// A record with no blocks says that flash had none. RX has neither regions nor bandwidth.
//
// Reading is strict: what is not as above, is cut, or has a record without a route is refused whole, with
// the place. Plain values, any thread.
//
//   SCalBackup backup;
//   const QString why = ReadCalBackup("apt-VR6211-handle1-20261122-160503.json", backup);
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include "Operations/calibration/CalBlockImage.h"
#include "Operations/calibration/CalRoutes.h"

struct SCalBackupRoute
{
    ECalRoute kind = ECalRoute::Tx;
    uint16_t band = 0;
    uint16_t route = 0;
    QVector<uint32_t> regionsKhz = {};  // upper bounds; of TX alone
};

struct SCalUnread
{
    QString record = {};
    QString why = {};
};

struct SCalBackup
{
    QString item = {};  // key of the item
    QString chip = {};
    uint32_t handle = 0;
    QString time = {};  // UTC, ISO 8601
    QVector<SCalBackupRoute> routes = {};
    SCalBlockImage image = {};  // places by the routes of this backup
    QVector<SCalUnread> unread = {};
};

constexpr qint64 kLongestCalBackup = 64 * 1024 * 1024;  // bytes; the largest DUT has 25 MB

constexpr char kCalBackupFormat[] = "quorlin-rf calibration";
constexpr int kCalBackupVersion = 1;

QByteArray CalBackupText(const SCalBackup &backup);
// Empty, or why the file is no backup: a sentence with its name.
QString ReadCalBackup(const QString &file, SCalBackup &backup);
// The routes of a route table, for all kinds.
QVector<SCalBackupRoute> BackupRoutesOf(const SMMRfRouteTableV7 &table);
// Gives each record the place that this DUT has for it. Empty, or which record it has none for.
QString PlaceOnDut(const SCalBackup &backup, const SMMRfRouteTableV7 &table, SCalBlockImage &image);
