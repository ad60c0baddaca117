// One page of the tool in the hands of a user, with what the user can see of it.
//
// Act brings one of the page's requests on its way; Seen tells what came of it so far. A request is
// answered when the page is no longer busy. BringTo presses Start or Stop as needed. GUI thread.
//
//   CPageDriver driver(kPages[0]);
//   driver.BringTo(EState::Idle);
//   driver.Act(kPages[0].requests[0]);
//   WaitUntil([&] { return driver.Seen().status == "Cont Rx start..."; });
#pragma once

#include <QTemporaryDir>

#include "tests/campaign/Words.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"

// What must not grow from case to case.
struct SLiving
{
    int objects = 0;  // of the tool's window
    int windows = 0;
    int files = 0;  // open ones of the process

    bool operator==(const SLiving &other) const
    {
        return objects == other.objects && windows == other.windows && files == other.files;
    }
    QString Text() const;
};

SLiving Living(const QMainWindow *window);

class CPageDriver
{
public:
    explicit CPageDriver(const SPage &page);

    // Shown, and ready for every request of the page. False when it does not come up.
    bool Ready();
    bool BringTo(EState state);
    // Back to how Ready left it: idle, and without results that add up.
    bool Home();

    // Has the DUT drop a test that it runs and of which it told the page that it does not: the page
    // has no way to stop that.
    void ForgetTest();

    void Act(const SRequest &request);
    bool IsBusy() const;
    bool IsAnswered() const;
    // The status line or a box says something.
    bool IsTold() const;
    // Why the user does not see these words; empty when he does.
    QString Differs(const SRequest &request, const SWords &words) const;
    // Waits for the words; what is wrong when they do not come.
    QString Await(const SRequest &request, const SWords &words);

    EState State() const { return m_state; }
    // The request that brings the page to a state from the other one. Of a page with tests.
    const SRequest &StartOrStop(EState state) const;
    int Rows() const;  // of all tables
    // What the user has entered: editors, choices and ticks of the page, as one text.
    QString Entries() const;
    // A calibration page: the file that it exports, and the one that it has exported when it was ready.
    QByteArray Exported();
    QByteArray ExportedFirst() const;

    CPluginSession &Session() { return m_session; }

private:
    QString Enabled() const;
    QString Shown(const char *widget) const;
    QString DiffersInBoxes(const SWords &words) const;
    bool RunWell(const SRequest &request);

    const SPage &m_page;
    CPluginSession m_session;
    CBoxWatcher m_boxes{1};
    QTemporaryDir m_folder;
    QString m_goodFile;
    EState m_state = EState::Idle;
    int m_files = 0;        // written so far
    int m_boxesBefore = 0;  // boxes and busy signals before the request
    int m_busyBefore = 0;
};
