// Two pages of the same document, one with the editors of its column tables made at once and one
// that makes them late, and what both are given.
//
//   const QJsonObject update = RandomUpdate(document, random);
//   early.UpdateWidget(update);
//   late.UpdateWidget(update);
//   QCOMPARE(late.PackageMemberValue(), early.PackageMemberValue());
//   QCOMPARE(DifferenceOfCells(early, late), QString());   // makes the late ones
#pragma once

#include <QJsonObject>
#include <QRandomGenerator>
#include <QWidget>

// A copy with other values in all its column tables: numbers within and beyond all limits, finer
// than any decimals, texts that are no numbers, arrays that are short or empty.
QJsonObject RandomUpdate(QJsonObject document, QRandomGenerator &random);
// A value as a document may have it.
QString RandomText(QRandomGenerator &random);
// The first cell that is not alike: kind, text, limits, tool tip, state. Empty when all are.
QString DifferenceOfCells(const QWidget &early, const QWidget &late);
// Column tables without editors.
int TablesWithoutEditors(const QWidget &page);
