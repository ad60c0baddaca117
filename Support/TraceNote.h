// Notes in the trace of what passes to the target: there when the tap is preloaded, and else nothing.
//
//   NoteInTrace("RSSI: Start");
//   NotePresses(page, "RSSI");   // from now on, each press of a push button of it
#pragma once

#include <QString>

class QWidget;

// Is there a tap that takes notes? Looked for once.
bool IsTraced();

// Any thread.
void NoteInTrace(const QString &text);

// Notes "<name>: <text of the button>" when a push button below the widget goes down, in front of whatever
// that sets off. Buttons that come later are not heard. GUI thread.
void NotePresses(QWidget *widget, const QString &name);
