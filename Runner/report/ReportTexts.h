// The texts of the reports: what a case looks like as a line of JSON, as rows of CSV.
//
//   file.Append(JsonLine(info, result));
//   file.Append(CsvHeader(sweptKeys));
//   file.Append(CsvRows(info, sweptKeys, result));
#pragma once

#include <QByteArray>
#include <QStringList>

#include "Runner/report/CaseResult.h"

// One JSON object and a line feed.
QByteArray JsonLine(const SRunInfo &info, const SCaseResult &result);

// RFC 4180: a header, lines that end in CR LF, fields in quotes where they need them. sweptKeys: the
// members that any step sweeps, a column each.
QByteArray CsvHeader(const QStringList &sweptKeys);
// A row a reading; a case without one has no row.
QByteArray CsvRows(const SRunInfo &info, const QStringList &sweptKeys, const SCaseResult &result);

// ISO 8601 in UTC with milliseconds; empty for an invalid time.
QString TimeText(const QDateTime &time);
