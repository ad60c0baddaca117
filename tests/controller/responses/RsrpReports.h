// What the tests of the RSRP pages' reports share: reports, documents and the rows in them.
//
//   QJsonObject document = PackagedPage(kForced);
//   Fetch(document, Measured(3));
//   EXPECT_EQ(Rows(document).size(), 3u);
#pragma once

#include <string>
#include <vector>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "tests/controller/commands/PageDocuments.h"

using Report = NRfTestResult_GetMixRxReportV7;
using Lines = std::vector<std::string>;

constexpr char kForced[] = "NrRsrpForceModeV7";
constexpr char kNormal[] = "NrRsrpNormalModeV7";
constexpr char kGroup1[] = "cmdIf.response.group1";
constexpr char kGroup2[] = "cmdIf.response.group2";

// The columns of two antennas and of four.
extern const QStringList kEight;
extern const QStringList kTwelve;

// Measurement i reads i quarters of a dB above round numbers; 1 bad block in 4.
Report Measured(int count);
// The packaged normal page with a MIMO type.
QJsonObject NormalDocument(const char *mimoType);

void Fetch(QJsonObject &document, const Report &report, bool success = true);
void FetchNormal(QJsonObject &document, const Report &report, bool success = true);
void Clean(QJsonObject &document);

// A line a listed row: its number and its cells.
Lines Rows(const QJsonObject &document, const char *group, const QStringList &members);
// The rows of the first table.
Lines Rows(const QJsonObject &document);
