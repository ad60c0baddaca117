// Documents that benchmarks and the regression guard measure with.
#pragma once

#include <QJsonObject>

constexpr int kBenchRows = 8;
constexpr int kBenchColumns = 64;

// The widget that shows ColumnDocument.
constexpr char kBenchTable[] = "cmdIf_response_group1_memberProperty_row0";

// A column table of 8 x 64 numbers from 0 to 69; first: the number in the first column.
QJsonObject ColumnDocument(int first);
// A continuous RX page, packaged, on both paths of a type 2 route.
QJsonObject PackagedContRx();
