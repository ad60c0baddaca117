// Filter texts of file dialogs as Qt takes them.
//
// The tool's filters are pairs of a name and its patterns. Bars separate names and patterns,
// semicolons separate the patterns of a name, and "*.*" means every file. Qt takes no bars: it wants
// a list of names, each followed by its patterns in brackets, with blanks between them. A text
// without a bar is in Qt's form already.
// Pure functions.
//
//     NameFilters("INI files (*.ini)|*.ini|All files (*.*)|*.*")
//         // "INI files (*.ini)", "All files (*)"
//     DefaultSuffix("INI files (*.ini)|*.ini|All files (*.*)|*.*")
//         // "ini"
#pragma once

#include <QString>
#include <QStringList>

QStringList NameFilters(const QString &filter);
// The suffix of a saved file whose name has none: that of the first filter's first pattern. Empty
// when that pattern is not of the form "*.suffix".
QString DefaultSuffix(const QString &filter);
