// The files that the tests check, and what modelcheck says of them.
//
//   EXPECT_EQ(LinesOf("good.json", "good.ui"), QStringList());
#pragma once

#include <QString>
#include <QStringList>

#include "tools/modelcheck/Check.h"

// A file of this folder's data, and of the source tree.
QString DataFile(const QString &name);
QString SourceFile(const QString &path);
// The text under the file's name without its folder; the test fails when it cannot be read.
STextFile ReadText(const QString &file);
// One line a finding of two files of this folder's data.
QStringList LinesOf(const QString &document, const QString &form);
// The same of a document alone.
QStringList LinesOf(const QString &document);
QStringList Lines(const TFindings &findings);
