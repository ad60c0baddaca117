// The page table: all that the core knows of a page, one row a page.
//
// A page's name travels through the requests of the core's interface. The core turns it into the
// page's id once, at the door; inside it is the id, which is the place of the row. Constant data,
// any thread.
//
//   const EPageId page = PageByName("Continuous RX");   // EPageId::ContRx
//   FindPage(page).resource;                            // ":/NrContRxV7.json"
#pragma once

#include <deque>
#include <optional>

#include <QString>
#include <QStringList>

#include "Controller/core/PageId.h"
#include "Controller/core/TestSummary.h"

class CNrDataModelCapUpdater;
class CNrDataModelResponseBuilder;
class QJsonObject;
struct NRfTestResult_GetMixRxReportV7;
struct STestOperations;
struct STestRun;

// What a row leaves out is null: the tool does not show the page, or the page has no such thing.
struct SPageRow
{
    EPageId id;
    const char *name;
    const char *className = nullptr;  // of the page that the tool shows
    int tab = 0;                      // its place among the tabs, from 1 on
    const char *resource = nullptr;   // the document that it starts from
    // Patches the document with what the DUT can do.
    bool (CNrDataModelCapUpdater::*driver)(QJsonObject &document) = nullptr;
    // Runs the page's test; its status (TestSteps.h).
    int (*step)(STestOperations &operations, STestRun &run, QJsonObject &document) = nullptr;
    // Ends the test; a test without one measures and is over.
    std::optional<EStop> stop = std::nullopt;
    STestSummary summary = {};  // of a running test
    // Shows a report that was fetched while the test runs.
    void (CNrDataModelResponseBuilder::*showReport)(QJsonObject &document,
                                                    const NRfTestResult_GetMixRxReportV7 &report,
                                                    bool success) const = nullptr;
};

const SPageRow &FindPage(EPageId id);
QString PageName(EPageId id);
EPageId PageByName(const QString &name);
// The pages that the tool shows, in the order of the tabs, and their class names.
std::deque<EPageId> ShownPages();
QStringList ShownPageClasses();
