// What a run of plans left in its folder, for tests of the program.
//
//   const CCliFolder folder;
//   const SCliRun run = folder.Run("run plan.yaml --out out");
//   for (const QJsonObject &line : Lines(folder, "out"))
//       ...
#pragma once

#include <string>

#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include "tests/cli/CliFolder.h"

constexpr char kOddProfile[] = ODD_PROFILE;
constexpr char kExamples[] = EXAMPLES;

QByteArray FileBytes(const std::string &path);

// The lines of results.jsonl. A line that is no JSON is a failure of the test.
QVector<QJsonObject> Lines(const CCliFolder &folder, const std::string &out);
// Of all lines in their order.
QStringList Verdicts(const CCliFolder &folder, const std::string &out);

// Fails the test unless all four reports are there and whole, with so many cases.
void ExpectWholeReports(const CCliFolder &folder, const std::string &out, int cases);

// The calls of a journal in the order of their ends, by name; those that were begun and did not end come
// last.
struct SJournalEntry
{
    std::string function;
    int result = 0;
    unsigned status = 0;
    bool isEnded = false;
    std::string request;
};
QVector<SJournalEntry> JournalEntries(const std::string &path);

// By the journal, may a test run in the DUT at its end? Empty when none does, else the call that began it.
std::string RunningTest(const QVector<SJournalEntry> &journal);
