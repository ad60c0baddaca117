// Where a page's document has results, and how they become rows.
//
// A source is a group of the document's response and two functions for it: the headers of its columns,
// and the rows that an answer brings. Pages name their sources as data. Pure functions.
//
//   constexpr SResultSource kReports = {.group = "group1", .headers = &RowTableHeaders,
//                                       .rows = &RowTableRows};
#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QVector>

struct SResultSource
{
    const char *group = nullptr;
    QStringList (*headers)(const QJsonObject &document, const QString &group) = nullptr;
    // known: rows that were taken since the last Clear.
    QVector<QStringList> (*rows)(const QJsonObject &document, const QString &group,
                                 int known) = nullptr;
};

// A row table (groupType 2): its members, and the rows that it has beyond the known ones.
QStringList RowTableHeaders(const QJsonObject &document, const QString &group);
QVector<QStringList> RowTableRows(const QJsonObject &document, const QString &group, int known);

// Single members (groupType 1): one row an answer.
QStringList ScalarHeaders(const QJsonObject &document, const QString &group);
QVector<QStringList> ScalarRows(const QJsonObject &document, const QString &group, int known);

// The RSSI page's gain search: the single members that it finds.
QStringList GainHeaders(const QJsonObject &document, const QString &group);
QVector<QStringList> GainRows(const QJsonObject &document, const QString &group, int known);

// The RSSI page's measurement: a row a channel of each path that was measured, with the gains that
// the path was measured with. A channel without a frequency was not measured.
QStringList RssiHeaders(const QJsonObject &document, const QString &group);
QVector<QStringList> RssiRows(const QJsonObject &document, const QString &group, int known);
