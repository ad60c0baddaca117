// The unit of a member of a document.
//
// Captions of documents name few units, and in several forms, so the units stand here, by member. Pure
// functions.
//
//   UnitOfMember("RSRP0");               // "dBm"
//   UnitOf("plOffset", "PL Offset (dB)");  // "dB", of the caption
#pragma once

#include <QString>

// By its key alone; empty when it has none.
QString UnitOfMember(const QString &key);
// Else by what stands in brackets at the end of its caption, if that is a unit.
QString UnitOf(const QString &key, const QString &caption);
