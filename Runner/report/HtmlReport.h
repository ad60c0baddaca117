// report.html: the verdicts and tables of a run for a person, in one file that needs no network.
//
//   file.write(HtmlReport(info, summaries));
#pragma once

#include <QByteArray>
#include <QVector>

#include "Runner/report/CaseSummary.h"

QByteArray HtmlReport(const SRunInfo &info, const QVector<SCaseSummary> &cases);
