// The settings that gave a result: the values of the request that travelled with it.
//
// Settings have the form of a settings file (docs/automation.md), with two words of their own beside
// it: the tool's version and the DUT's chip. Pure functions.
//
//   const QJsonObject request = PackagedValues(document, "cmdIf.request");
//   SettingsObject({.page = "RSSI", .version = 1, .tool = "0.1", .chip = "..."}, request);
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

struct SResultOrigin
{
    QString page = {};  // title
    int version = 1;    // of its document
    QString tool = {};
    QString chip = {};  // empty: not known
};

// request: as of PackagedValues.
QJsonObject SettingsObject(const SResultOrigin &origin, const QJsonObject &request);

// A member of the request, as its column's header names it.
struct SSettingMember
{
    QString group = {};
    QString member = {};
    QString header = {};
};
QVector<SSettingMember> SettingMembers(const QJsonObject &document);

// The settings that an export shows as columns: those that it always shows, and all that differ
// between its rows, in the order of the members. Values of tables are no columns.
struct SSettingColumns
{
    QStringList headers = {};
    QVector<QStringList> values = {};  // by number of settings
};

// always: such as "group1.band".
SSettingColumns SettingColumns(const QVector<QJsonObject> &settings, const QStringList &always,
                               const QVector<SSettingMember> &members);
