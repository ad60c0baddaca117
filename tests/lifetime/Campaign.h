// Resets, hides, unloads and process ends at random moments of every request.
//
// A round makes one request on a tool that is ready for it, and does one thing to the tool at one
// moment: before the DUT is asked, while it holds the call, while its answer waits, or some time
// later, in the file dialog, or in the box of a failed request. Then it lets all end and looks: the
// GUI never waited for the DUT, the host knows that the tool is idle, what should be gone is gone,
// and the same request runs again. What a round does follows from the seed and its number alone.
//
//   CCampaign campaign(seed, folder);
//   for (int round = 0; round < rounds; ++round)
//       campaign.Run(round);
//   campaign.Print();
#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <string>

#include "tests/lifetime/Tool.h"

enum class EAction
{
    Reset,
    Hide,
    Unload,
    Exit,
    Count,
};

enum class EMoment
{
    AtOnce,    // asked, no event handled since
    Held,      // the DUT has the call
    Answered,  // the answer waits
    Later,     // some events and some time later
    Dialog,    // the file dialog is open
    Box,       // the box of the failure is open
};

// How a process ends.
enum class EEnd
{
    Exit,     // exit() from the midst of it
    Abandon,  // main returns, the plug-in stays loaded
    Unload,   // the plug-in is unloaded first
    Count,
};

struct STally
{
    int run = 0;
    int held = 0;
};

class CCampaign
{
public:
    CCampaign(uint64_t seed, const QString &folder);

    void Run(int round);
    // The round's request in this process, which then ends; comes back if main is to return.
    void RunToTheEnd(int round);
    // Rows are pages with their requests, columns are actions. False if a round did not hold.
    bool Print() const;

private:
    struct SRound
    {
        const SRequest *request;
        EAction action;
        EMoment moment;
        int turns;  // of the event loop, before the action
        int pause;  // us
        int delay;  // ms that the DUT takes
        EEnd end;
    };

    SRound Draw(int round) const;
    QString RunRound(const SRound &round);
    QString MakeAndAct(const SRound &round);
    QString Look(const SRound &round);
    QString RunAgain(const SRequest &request);
    QString RunChild(int number) const;
    void Launch(const SRound &round);
    void Act(const SRound &round);

    const uint64_t m_seed;
    const QString m_folder;
    CTool m_tool;
    bool m_isShowDue = false;  // a hidden window is shown again in a moment
    bool m_hasActed = false;
    bool m_endsProcess = false;
    std::map<std::pair<int, EAction>, STally> m_tallies;  // request, action
};
