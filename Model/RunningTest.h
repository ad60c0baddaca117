// A test that the tool has started, in words for the window: which one, where, and since when.
//
// A value: copied freely, passed through queued signals under its name.
//
//   SRunningTestInfo info{"Single Tone TX  n78  3549.990 MHz  23.00 dBm", true, RunningClockMs()};
#pragma once

#include <QMetaType>
#include <QString>

struct SRunningTestInfo
{
    QString text = {};  // empty: no test runs
    bool transmits = false;
    qint64 startedMs = 0;  // of RunningClockMs
};

// A clock that never goes back, the same on all threads.
qint64 RunningClockMs();

Q_DECLARE_METATYPE(SRunningTestInfo)
