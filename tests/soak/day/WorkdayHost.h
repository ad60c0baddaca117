// What an engineer does with the bench host in a round of the working day: its buttons and its pages DUT,
// Faults, Door and Plug-in. It loads the same plug-in as the desk, and steers the same simulated DUT.
//
// Throws std::runtime_error with what was expected when the host does not do it. GUI thread.
//
//   CWorkdayHost host(desk, {});
//   host.Show();
//   host.Panels();
#pragma once

#include <memory>

#include <QPushButton>

#include "Host/BenchHost.h"
#include "tests/hands/desk/Desk.h"
#include "tests/soak/day/WorkdayPace.h"

class CWorkdayHost
{
public:
    CWorkdayHost(CDesk &desk, const SWorkdayPace &pace);

    // Host and tool, to the end of the tool's init flow.
    void Show();
    // Each page of the host is worked.
    void Panels();
    // Query, Disable and Enable, Hide, the picture, the tool's window closed; both windows come back.
    void Buttons();
    // The host's own window is closed, which hides the tool; both come back.
    void CloseAndReopen();
    // The tool forgets its pages and builds them anew.
    void Reset();
    // The next call fails; the page Faults tells it, and clears it away later.
    void FailNextCall();
    void RemoveFaults();
    // The event log is filled to its bound.
    void FillEvents();
    // The journal of the simulated DUT is emptied, and the page Door with it.
    void ForgetCalls();

private:
    template <typename Widget>
    Widget *Find(const char *name) const
    {
        return m_host->findChild<Widget *>(name);
    }
    void Press(const char *button);
    void Turn(const QString &panel);
    void WorkDut();
    void WorkFaults();
    void WorkDoor();

    CDesk &m_desk;
    const SWorkdayPace m_pace;
    CPluginHandle m_plugin;
    std::unique_ptr<CBenchHost> m_host;
};
