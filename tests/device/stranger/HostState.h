// What a process has one of, as a host may have set it: each by name, as text, so that two looks can be
// compared. GUI thread, no job on the pool.
//
//   const SHostState before = HostState();
//   ... the tool works ...
//   QCOMPARE(HostStateChanges(before), QStringList());
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

using SHostState = QMap<QString, QString>;

SHostState HostState();
// "umask: 0027, now 0022" for each that is not as it was.
QStringList HostStateChanges(const SHostState &before);

// Makes this process a host that has its own of all that HostState() looks at and Qt lets it set.
void BecomeUnusualHost();
