// Colours and symbols of curves, by number: the set of Okabe and Ito, which people with any kind of
// colour vision tell apart, in an order and lightness for a light and for a dark ground. After the last
// one they begin anew. A symbol tells a curve without its colour.
//
//   CurveColor(0, palette());   // blue on white, sky blue on black
//   CurveSymbol(0);             // a circle
#pragma once

#include <QColor>
#include <QPalette>
#include <qwt_symbol.h>

bool IsDark(const QPalette &palette);
QColor CurveColor(int number, const QPalette &palette);
QwtSymbol::Style CurveSymbol(int number);
