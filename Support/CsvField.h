// A field of a CSV file by RFC 4180: quoted where it holds a comma, a quotation mark or an end of a line.
// Pure function.
//
//   CsvField("n78, n41");   // "\"n78, n41\""
#pragma once

#include <QByteArray>

QByteArray CsvField(const QByteArray &text);
