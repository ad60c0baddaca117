// What a file of results holds: settings, headers, rows. Values only; any thread.
//
// A row's columns are its time, its readings (CResultRows), and its settings that are columns.
#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include "View/results/ResultRows.h"

struct SResultTable
{
    QJsonObject settings = {};  // of the newest row
    QStringList headers = {};   // of the readings, then of the settings; the time comes first
    CResultRows rows = {};
    QVector<QStringList> settingTexts = {};  // by a row's number of settings
};

constexpr char kTimeHeader[] = "Time";

// ISO 8601 with milliseconds and the offset of this machine at that time:
// "2026-11-22T17:30:00.250+01:00".
QString ResultTime(qint64 timeMs);
