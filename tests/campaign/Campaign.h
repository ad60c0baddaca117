// The campaign: each request of the tool, with each call that it makes gone wrong in each way.
//
// A good run of a request tells by its journal which functions it reaches and how often. Then each
// fault of each is laid in turn. A case holds when the user saw the right words, the page came back
// as it is to come back, the same request done again was good, and the tool is no larger than
// before. The GUI's event loop must turn while an answer is late.
//
//   CTally tally;
//   CCampaign campaign(tally, {EDelay::Gate, 3});
//   campaign.RunPage(kPages[0]);
#pragma once

#include <memory>

#include <QMap>
#include <QVector>

#include "tests/campaign/PageDriver.h"
#include "tests/campaign/Tally.h"

struct SCampaignOptions
{
    EDelay delay = EDelay::Gate;
    int noises = 1;         // how many kinds of noise each answer is tried with
    bool hasFaults = true;  // false: good runs alone, for what reaches what
};

// Functions of the DUT in the journal, and how often each was called.
QMap<QString, int> CalledFunctions();

class CCampaign
{
public:
    CCampaign(CTally &tally, const SCampaignOptions &options);
    virtual ~CCampaign() = default;

    void RunPage(const SPage &page);

protected:
    // What goes wrong under a request that made these calls in its good run: here each fault of each.
    virtual void RunCases(const SRequest &request, const QMap<QString, int> &calls);
    // The page as it comes up, after a case that did not hold.
    void StartAfresh();
    // The request is good again, and has left nothing.
    QString HoldsBehind(const SRequest &request);
    QString Name(const SRequest &request) const;
    const SPage &Page() const { return *m_page; }
    CPageDriver &Driver() const { return *m_driver; }
    CTally &Tally() const { return m_tally; }

private:
    void RunRequest(const SRequest &request);
    void RunFault(const SRequest &request, const SDoorFault &fault);
    QString HoldsUnder(const SRequest &request, const SDoorFault &fault, bool &isTextAskedFor);
    bool Restart();

    CTally &m_tally;
    const SCampaignOptions m_options;
    const SPage *m_page = nullptr;
    std::unique_ptr<CPageDriver> m_driver;
    SLiving m_living;  // of the idle page
};
