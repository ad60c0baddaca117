// The header of a column of results: its caption with its unit, "BLER (%)" or "DL Freq. (kHz)".
//
// The unit is the member's (MemberUnit.h); a caption's own one in brackets gives way. Pure functions.
//
//   ResultHeader("RSRP0", "RSRP0");         // "RSRP0 (dBm)"
//   ResultHeader("dlFrequency", "DL Freq.(1kHz)");   // "DL Freq. (kHz)"
#pragma once

#include <QString>
#include <QStringList>

QString ResultHeader(const QString &member, const QString &caption);
// Makes equal headers differ by a number behind them: a reader of the file finds columns by name.
QStringList DistinctHeaders(const QStringList &headers);
