// The two sides of a comparison: files, or the DUT.
//
// The DUT is asked only where a side needs it: for its flash, or for an INI file, whose sections are found
// by the route table. What an INI file has no key for is taken from the other side, or 0 between two INI
// files: it differs in nothing that it cannot hold.
//
//   SCalSides sides;
//   const QString why = ReadSides(request, sides);
#pragma once

#include <QString>
#include <QStringList>

#include "Cli/cal/CalRequest.h"
#include "Operations/calibration/CalBlockImage.h"

struct SCalSides
{
    QString item = {};  // key
    SCalBlockImage left = {};
    SCalBlockImage right = {};
    QStringList notes = {};  // records that could not be read
};

// Empty, or why there is nothing to compare.
QString ReadSides(const SCalRequest &request, SCalSides &sides);
