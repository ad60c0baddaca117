// What a form writes beside, above and around a widget, for those that cannot see where it stands.
// GUI thread.
//
//   GridWords(paMode2);      // {.row = "2", .column = "paMode"}
//   TitleOf(table);          // "Temperature", of the box or the tab around it
#pragma once

#include <QString>

class QWidget;

// Labels of the widget's grid layout; empty without one.
struct SGridWords
{
    QString row;     // the nearest one to the left
    QString column;  // those above, from the top
};

SGridWords GridWords(const QWidget *widget);
// Empty when nothing around it has a title.
QString TitleOf(const QWidget *widget);
