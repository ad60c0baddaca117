// The tool's requests at their buttons, as one table: what each page can be asked to do, and what
// its user is to see and hear then. Constants.
//
//   for (const SPage &page : kPages)
//       for (int i = 0; i < page.requestCount; ++i)
//           ... page.requests[i].done ...
#pragma once

enum class EState
{
    Idle,
    Running  // a test runs on the target
};

// How a failure is told.
enum class EVoice
{
    Box,         // a box with the row of the status table; the status line is `failed`
    ModelBox,    // the page's box of model errors; the status line is that of a good answer
    StatusLine,  // the status line alone, `failed` with the target's words behind it
};

enum class EWay
{
    Button,
    Tick,  // the report timer's slot
    Open,  // a button, and a file that is there
    Save,  // a button, and a file that is not there yet
};

struct SRequest
{
    const char *name;
    EWay way;
    const char *trigger;  // object name of the button, or the slot
    EState needs;
    EState leads;  // state behind a good answer
    EVoice voice;
    const char *done;    // status line
    const char *failed;  // status line
    const char *title;   // of the box; of a model box: how its message begins
    const char *onDone;  // what can be pressed behind a good answer, and behind a failure
    const char *onFailed;
    const char *shown;  // widget that shows a failure, if any, and its text
    const char *shownText;
};

struct SButton
{
    const char *object;
    const char *word;
};

struct SPage
{
    const char *name;
    const char *group;  // part of the campaign
    const char *className;
    const char *title;  // of the window
    const char *profile;
    const SButton *buttons;
    int buttonCount;
    const SRequest *requests;  // a page with tests: start, then stop
    int requestCount;
    bool hasTest;
};

extern const SPage kPages[];
extern const int kPageCount;
