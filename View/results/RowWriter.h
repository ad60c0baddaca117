// Walks over the rows of a result table and writes them to a device, a block at a time.
//
// What a row looks like is the caller's. Any thread.
//
//   WriteRows(file, table, goesOn, [](QByteArray &out, const auto &cells) { ... });
#pragma once

#include <functional>

#include <QIODevice>

#include "View/results/ResultTable.h"

// False ends the writing; asked now and then.
using GoesOn = std::function<bool()>;
// Appends a line: of the time, the readings and the settings of a row, as UTF-8.
using AddLine = std::function<void(QByteArray &out, const QVector<QByteArray> &cells)>;

// False when the device took less than all, or goesOn ended it.
bool WriteRows(QIODevice &out, const SResultTable &table, const QByteArray &head,
               const GoesOn &goesOn, const AddLine &addLine);
