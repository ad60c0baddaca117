// The simulated DUT's journal, as values.
//
//   const auto starts = JournalOf("VOND_MMRf_ContRxV7_r");
//   QCOMPARE(starts.size(), 1);
//   QCOMPARE(starts[0].request, expectedBytes);
#pragma once

#include <optional>
#include <string_view>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "Simulator/VondSim.h"

struct SJournalCall
{
    SVondSimCall call;
    QByteArray request;
    QByteArray answer;
};

// All calls in order, or those of one function.
QVector<SJournalCall> Journal();
QVector<SJournalCall> JournalOf(const char *function);
int CountCalls(const char *function);
// Of one call alone; empty behind the last.
QByteArray RequestOf(uint32_t index);
// A number of the call's request, by its name in Trace/dictionary; nothing where it has no such number.
std::optional<int64_t> RequestNumber(const SJournalCall &call, std::string_view field);
