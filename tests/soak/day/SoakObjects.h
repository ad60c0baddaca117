// All that a line of the working day counts: files and threads of the process, and what Qt holds.
//
//   const SHandles handles = CountAll();
#pragma once

#include <QMap>
#include <QString>

#include "tests/soak/SoakHandles.h"

// GUI thread.
SHandles CountAll();
// How many objects there are of each class, name and owner that CountAll counts.
QMap<QString, int> CountByName();
