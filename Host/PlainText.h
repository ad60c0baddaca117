// The words of a text that may have markup, as a person reads them.
//
//     PlainText("<font size=4>Read failed.</font>")   // "Read failed."
#pragma once

#include <QString>

QString PlainText(const QString &text);
