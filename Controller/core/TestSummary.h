// What the window shows of a test while it runs: the page's name, the band, the frequency and the
// power, as the started document has them.
//
// A page's row says which members these are. A member that the document lacks is left out. Pure
// function, any thread.
//
//   SummaryOf(page.name, page.summary, document);
//   // "Single Tone TX  n78  3549.990 MHz  23.00 dBm", transmits
#pragma once

#include <QJsonObject>

#include "Model/RunningTest.h"

// Members of the request, such as "group1.band"; null: the page has none.
struct STestSummary
{
    const char *band = "group1.band";
    const char *frequency = nullptr;    // kHz
    const char *power = nullptr;        // dBm, of a test that transmits
    bool transmits = false;             // it always does
    const char *transmitsBy = nullptr;  // it does when this member's text has "TX" in it
};

SRunningTestInfo SummaryOf(const char *pageName, const STestSummary &summary,
                           const QJsonObject &document);
