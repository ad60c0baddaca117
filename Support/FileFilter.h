#pragma once

// Filter texts of file dialogs as Qt takes them.
//
// The tool's filters are pairs of a name and its patterns, all parted by bars; patterns are parted
// by semicolons, and "*.*" means every file. Qt takes no bars, but a list of names with the
// patterns in brackets behind, parted by blanks. A text without a bar is Qt's own form already.
// Pure functions.
//
//     NameFilters("INI files (*.ini)|*.ini|All files (*.*)|*.*")  // "INI files (*.ini)", "All
//     files (*)" DefaultSuffix("INI files (*.ini)|*.ini|...")                // "ini"

#include <QString>
#include <QStringList>

QStringList NameFilters(const QString &filter);
// What a saved file's name ends in when the user has named no end: that of the first filter's first
// pattern; empty when that is no "*.end".
QString DefaultSuffix(const QString &filter);
