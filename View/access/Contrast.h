// How well a colour is read on another one, by the Web Content Accessibility Guidelines (WCAG 2.1).
//
// Level AA wants a contrast of 4.5 for text. Colours of the tool that a desktop does not give are made
// or checked here, so that they hold on a light and on a dark one. Pure functions.
//
//   Contrast(Qt::black, Qt::white);             // 21
//   Readable(Qt::lightGray, Qt::white);         // a grey of 4.5
//   FadedText(palette.text().color(), ground);  // grey, and still read
#pragma once

#include <QColor>

constexpr double kTextContrast = 4.5;

// Of two opaque colours, from 1 to 21; the order is no matter.
double Contrast(const QColor &one, const QColor &other);
// The wanted colour, brought towards black or white as far as text on this ground needs it.
QColor Readable(const QColor &wanted, const QColor &ground);
// Of a text that is there, but does not count now: as near to the ground as it may come.
QColor FadedText(const QColor &text, const QColor &ground);
