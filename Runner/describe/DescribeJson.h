// What the tool has, as JSON: docs/describe.schema.json is its form.
//
//   const QJsonObject tool = DescribeTool(bench);              // its pages
//   const QJsonObject page = DescribePage(bench, *bench.FindPage("RSSI", nullptr));
#pragma once

#include <QJsonObject>

#include "Runner/bench/BenchTypes.h"

class CBench;
class CBenchPage;

QJsonObject DescribeTool(const CBench &bench);
// The same, with "page" in place of "pages".
QJsonObject DescribePage(const CBench &bench, const CBenchPage &page);

// Parts of it.
QJsonObject MemberJson(const SBenchMember &member);
QJsonObject TableJson(const SBenchTable &table);
QJsonObject BoxJson(const SBenchBox &box);
