// What the eye finds wrong with a page, as lines for a failing test: one names the widget and how
// many pixels it lacks. An empty list is a good page. GUI thread; the page stands in front.
//
//   QCOMPARE(CutTexts(page).join('\n'), QString());
#pragma once

#include <QStringList>
#include <QWidget>

// Texts of visible labels, buttons, editors, titles, table headers and cells, and all items of
// combo boxes, that have less room than they need.
QStringList CutTexts(const QWidget *page);

// Visible widgets of one layout that lie over each other, or outside of what they stand in.
QStringList Overlaps(const QWidget *page);

// Visible scroll bars that the page itself puts up: not those of a table that is wider or longer
// than its place by what it holds.
QStringList PageScrollBars(const QWidget *page);

// Visible push buttons of the page that are not in view as a whole.
QStringList HiddenButtons(const QWidget *page);
