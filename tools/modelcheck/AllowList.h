// The breaches that pages make on purpose.
//
// A text file, one breach a line: file name, path, kind, and the reason in words; blanks between
// them. A path with a blank in it stands in quotes. Empty lines and lines that start with "#" are
// left out.
//
//     Page.json cmdIf.request.group1.memberProperty.gain.trait.defaultValue default-zero 0 dB is meant
//
// A line excuses the findings with its file name (without folder), path and kind, and nothing else.
// A line of a checked file that excuses nothing is a finding itself, so the list never holds more
// than the pages need. Lines of files that were not checked are left alone, and so are lines about
// widgets when the document was checked without its form.
//
//   const SAllowList list = ReadAllowList(text);
//   if (!list.error.isEmpty()) ...                       // "line 7: unknown kind "cicle""
//   ApplyAllowList(list, "allowed.txt", {{"A.json", "A.ui", "B.json"}, {"B.json"}}, findings);
#pragma once

#include <vector>

#include <QStringList>

#include "tools/modelcheck/Finding.h"

struct SAllowLine
{
    QString file;
    QString path;
    EKind kind;
    QString reason;
    int line;
};

struct SAllowList
{
    std::vector<SAllowLine> lines;
    QString error;  // empty when the text is a list
};

struct SCheckedFiles
{
    QStringList all;           // documents and forms
    QStringList withoutForms;  // the documents that were checked alone
};

SAllowList ReadAllowList(const QString &text);

// Takes the excused findings out, and adds one for each stale line; listName is the list's file.
void ApplyAllowList(const SAllowList &list, const QString &listName, const SCheckedFiles &checked,
                    TFindings &findings);
