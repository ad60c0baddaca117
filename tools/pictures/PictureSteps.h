// The script of the pictures: a line a step, words separated by blanks, '#' before a remark.
//
//   page CLASS               brings a page to the front
//   choose MEMBER TEXT       takes a choice of a list of the page, by the member's key
//   enter MEMBER TEXT        types into an editor of the page; MEMBER[row,column] is a cell of a table
//   press BUTTON             presses a button by object name: of the dialog that asks, or of the page, or of
//                            any window
//   action NAME              runs an action of the page, one of its editors, or the window
//   focus MEMBER[row,column] gives a cell the focus, as Tab does
//   key KEYS                 sends keys to what has the focus ("Shift+Right")
//   type TEXT                types into what has the focus
//   status TEXT              waits until the status line begins so
//   rows MEMBER N            waits until the result table has N rows
//   shown CLASS              waits until a window of that object name or class is shown
//   picture FILE [CLASS]     saves the tool's window, or another one, as FILE.png
//   close CLASS              closes a window
//
// A step is done as soon as it can be done. What cannot be done within half a minute ends the script.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct SPictureStep
{
    int line = 0;
    QString verb = {};
    QString what = {};  // first word behind the verb
    QString text = {};  // the rest of the line
};

// Nothing, with the reason in error, when a line is not of the form above.
QVector<SPictureStep> ReadPictureSteps(const QString &file, QString &error);
