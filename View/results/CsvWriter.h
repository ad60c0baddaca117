// Results as CSV by RFC 4180, in UTF-8 without a mark at its begin: a line of headers, a line a row,
// each ended by CR LF. A field with a comma, a quotation mark or an end of line stands in quotation
// marks, and a mark inside it is doubled. Any thread.
//
//   WriteCsv(file, table, [] { return true; });
//   // Time,RSRP0 (dBm)
//   // 2026-11-22T17:30:00.250+01:00,-85.25
#pragma once

#include "View/results/RowWriter.h"

bool WriteCsv(QIODevice &out, const SResultTable &table, const GoesOn &goesOn);
