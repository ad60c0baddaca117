// Alters a document so that it stays one: a value, a key or an element at a time.
//
// Changed bytes seldom leave JSON behind, and what is none is all alike to the engine. The values
// and keys put in are those of the data model format, and limits of its numbers. The same random
// numbers make the same change. Pure; any thread.
//
//   std::mt19937 random(seed);
//   const QByteArray altered = MutateInput(input, random);
#pragma once

#include <random>

#include <QByteArray>

// A JSON text altered; one that is none comes back as it is.
QByteArray MutateJson(const QByteArray &text, std::mt19937 &random);
// One part of a fuzz input altered: the document, an action, or a report.
QByteArray MutateInput(const QByteArray &input, std::mt19937 &random);
