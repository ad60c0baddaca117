// junit.xml: a test suite a plan, a test case a combination, as CI servers read it.
//
//   file.write(JUnitXml(info, summaries));
#pragma once

#include <QByteArray>
#include <QVector>

#include "Runner/report/CaseSummary.h"

// A case that could not be carried out is an error, one that did not run is skipped.
QByteArray JUnitXml(const SRunInfo &info, const QVector<SCaseSummary> &cases);
