// One sitting of a user: a fresh tool on a fresh DUT, and so many deeds.
//
//   CEpisode episode({"--seeds 7", 7, 200, EUser::Engineer});
//   if (!episode.Run({}, false))
//       std::puts(qPrintable(episode.Report()));   // what failed, and the last deeds
#pragma once

#include <memory>
#include <vector>

#include <QTemporaryDir>

#include "tests/hands/actions/Actions.h"
#include "tests/hands/rules/Rule.h"
#include "tests/hands/witness/DutCommands.h"

enum class EUser
{
    Careless,
    Engineer,  // careless, too, but on a DUT with many faults at once; a way back ends his sitting
};

struct SSitting
{
    QString title;  // that plays it again
    uint64_t chance = 0;
    int deeds = 0;
    EUser user = EUser::Careless;
};

struct SCounts
{
    int deeds = 0;
    int calls = 0;  // of the DUT
    int failedCalls = 0;
    int commands = 0;  // compared with what the page showed
    int edits = 0;     // of calibration cells
    int writes = 0;    // of the flash

    SCounts &operator+=(const SCounts &other);
};

class CEpisode
{
public:
    explicit CEpisode(const SSitting &sitting);
    ~CEpisode();

    // skipped: names of rules that are not looked at.
    bool Run(const QStringList &skipped, bool isVerbose);
    const QString &RuleName() const { return m_ruleName; }
    QString Report() const;
    SCounts Counts() const { return m_counts; }
    // What was done, in words, and what reached the DUT, call by call: the same in each run of a sitting.
    const QStringList &Steps() const { return m_done; }
    const QStringList &Calls() const { return m_calls; }

private:
    QString Prepare();
    void MakeFolders();
    void MakeRules();
    void HearRules();
    const SActionRow &Next();
    bool Do(const SActionRow &action);
    QString NewCalls();
    void CountRules();

    const SSitting m_sitting;
    const bool m_isEngineer;
    CChance m_chance;
    QTemporaryDir m_folder;
    std::unique_ptr<CDesk> m_desk;
    std::unique_ptr<CDutCommands> m_commands;
    std::vector<std::unique_ptr<IRule>> m_rules;
    QStringList m_skipped;
    bool m_isVerbose = false;
    QStringList m_done;       // words of the deeds
    QStringList m_calls;      // of the DUT: function, result, digest of the request
    uint32_t m_nextCall = 0;  // of the journal
    QString m_ruleName;
    QString m_failure;
    SCounts m_counts;
};
