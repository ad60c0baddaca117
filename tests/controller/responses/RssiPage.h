// What the tests of the RSSI page's results share: its document, and what it shows.
//
//   const QJsonObject before = RssiDocument(kPath0);
//   ExpectShown(before, after, {{"group1.adviseDlPower", "-85.03125"}});
#pragma once

#include <map>
#include <string>

#include "tests/controller/commands/PageDocuments.h"

// What the members show, "group1.path0MainRfGain" to a value as JSON text.
using Shown = std::map<std::string, std::string>;

constexpr char kPath0[] = "Partial-On Path0";
constexpr char kPath1[] = "Partial-On Path1";
constexpr char kBoth[] = "Simultaneously";

// The packaged page with a CAL type.
QJsonObject RssiDocument(const char *calType);
// Path of a response member's default, by "group1.adviseDlPower".
QString Place(const QString &member);
Shown AllShown(const QJsonObject &document);
// The document shows what it did before, but for the changes, and holds nothing else anew. A change
// in brackets is a row of texts: "[1, 2, 3, 4, 5]".
void ExpectShown(const QJsonObject &before, const QJsonObject &after, const TextMap &changes);
