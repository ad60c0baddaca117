// Every request that a user can make of the tool, as the campaign makes it.
//
//   for (const SRequest &request : AllRequests())
//       session.Press(request.button);
#pragma once

#include <QVector>

// What must be so before the request can be made.
enum class EBefore
{
    Nothing,   // the page has its document
    Running,   // its test runs
    Results,   // its test has given some
    Read,      // it shows the DUT's calibration data
    Edited,    // it does, and a cell has been changed since
    File,      // there is a file to import
    Settings,  // there is a file of its settings
    Fresh,     // the tool has no pages: the request is made by showing it
};

enum class EWay
{
    Button,
    Timer,   // the slot of the report timer
    File,    // a button with a file dialog behind it
    Action,  // of the page, one of its editors, or the window
    Launch,  // the show of the window; the moment comes while the page waits for its document
};

struct SRequest
{
    const char *page;      // class; empty: the window itself
    const char *name;      // in the table
    const char *function;  // of the DUT, which the request calls; null: none that can be held
    EWay way;
    const char *button;  // or slot, or action
    EBefore before;
    bool hasDialog = false;  // a file dialog, which gets a file, or a question, which is cancelled
};

const QVector<SRequest> &AllRequests();
