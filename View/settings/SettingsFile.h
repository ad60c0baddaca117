// The settings of one page as a file: what its editors hold, in the form that plans take, too.
//
//   {"version": 1, "page": "RSSI",
//    "request": {"group1": {"band": "n78"}, "group2": {"dlFrequency": ["3500010", "3750000"]}}}
//
// version is that of the page's document. A calibration page has "config" in place of "request". Pure
// functions, any thread.
//
//   QString reason;
//   const std::optional<SSettingsFile> file = ReadSettings(bytes, reason);   // none: reason tells why
#pragma once

#include <optional>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

struct SSettingsFile
{
    int version = 0;
    QString page = {};
    QString section = {};     // "request" or "config"
    QJsonObject groups = {};  // {"group1": {"band": "n78"}}, values are texts and lists of texts
};

QByteArray SettingsText(const SSettingsFile &file);
std::optional<SSettingsFile> ReadSettings(const QByteArray &bytes, QString &reason);
