// What a page holds, for the reports: its inputs as packaged, its outputs with units.
//
//   result.inputs = PackagedInputs(page->DocumentText());
//   result.outputs = OutputsOf(*page);
#pragma once

#include <QJsonObject>
#include <QVector>

#include "Runner/bench/BenchPage.h"
#include "Runner/report/CaseResult.h"

// "request.group1.band" to a text, a row of a column table to an array of texts. Sections request and
// config.
QJsonObject PackagedInputs(const QString &documentText);

// Members of response and data, and columns of the result table that is shown.
QVector<SCaseOutput> OutputsOf(const CBenchPage &page);
