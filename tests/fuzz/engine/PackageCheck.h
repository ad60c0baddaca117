// What must hold of a packaged document, whatever the document was.
//
// A rule that is broken ends the process with a line that names it, so that a fuzzer takes it for a
// crash. GUI thread.
//
//   const QJsonObject packaged = CheckedPackage(page);
#pragma once

#include <QJsonObject>

class CFuzzPage;

// Packages the page twice. The text is that of a JSON object, both times the same, and it holds
// what every bound editor shows, in the form that the command builders read.
QJsonObject CheckedPackage(CFuzzPage &page);

// The page takes its own packaged document as a report. Nothing that the user entered changes, and
// taking it again changes nothing at all, as long as no result member publishes to others.
void CheckOwnReport(CFuzzPage &page);
