// Results as JSON Lines: an object a line, in UTF-8. The first one is the settings, the others are the
// rows, with the headers for keys. A text that is a JSON number stands as that number, digit by digit;
// any other one as a text ("NAN", "FAIL"). Any thread.
//
//   WriteJsonLines(file, table, [] { return true; });
//   // {"chip":"...","page":"RSSI","request":{...},"tool":"0.1","version":1}
//   // {"Time":"2026-11-22T17:30:00.250+01:00","RSRP0 (dBm)":-85.25}
#pragma once

#include "View/results/RowWriter.h"

bool WriteJsonLines(QIODevice &out, const SResultTable &table, const GoesOn &goesOn);

// A number as it stands, or a text in quotation marks.
QByteArray JsonValueText(const QByteArray &text);
