// The whole check of one page: its document, its form, and the two against each other. A page that
// has no form yet has its document checked alone, and nothing is said of widgets.
//
// Takes the texts of the files and the names to report them under; touches no file. A text that
// does not parse is a finding like any other, and what hangs on it is left out. Any thread.
//
//   const TFindings findings =
//       CheckPage({"NrContRxV7.json", json}, {"NrContRxDockWidgetV7.ui", ui});
//   const TFindings early = CheckDocument({"NrContRxV7.json", json});
#pragma once

#include <QByteArray>
#include <QString>

#include "tools/modelcheck/Finding.h"

struct STextFile
{
    QString name;
    QByteArray text;
};

TFindings CheckPage(const STextFile &document, const STextFile &form);
TFindings CheckDocument(const STextFile &document);
